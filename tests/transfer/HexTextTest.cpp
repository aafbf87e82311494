#include "transfer/HexText.h"

#include <gtest/gtest.h>

#include <string>

TEST(HexByteSumOf, ATextIsTheSumOfItsPairs) {
    struct {
        const char* text;
        int sum;
    } const cases[] = {
        {"", 0},         {"00", 0},    {"01", 1}, {"FF", 255},  {"ff", 255},  {"0102FF", 258},
        {"FFFFFF", 765}, {"01020", 3}, {"1", 0},  {"zz10", 16}, {"10zz", 16},
    };
    for (const auto& c : cases)
        EXPECT_EQ(HexByteSum(c.text), c.sum) << c.text;
}

TEST(HexNumberAt, APositionIsTheNumberOfItsDigits) {
    struct {
        const char* text;
        size_t position, digits;
        unsigned number;
    } const cases[] = {
        {"0123456789ABCDEF", 0, 4, 0x0123},
        {"0123456789ABCDEF", 8, 8, 0x89ABCDEF},
        {"FFFFFFFF", 0, 8, 0xFFFFFFFF},
        {"abcdef", 1, 2, 0xBC},
        {"12", 0, 0, 0},
        {"12", 1, 2, 0x20},
        {"12", 2, 2, 0},
        {"", 7, 4, 0},
        {"1g2", 0, 3, 0x102},
        {"-1 2", 0, 4, 0x0102},
        {"0x12", 0, 4, 0x0012},
        {"@G`g/:", 0, 6, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(HexNumberAt(c.text, c.position, c.digits), c.number) << c.text << " at " << c.position;
}
