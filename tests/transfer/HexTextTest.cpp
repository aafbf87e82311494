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
