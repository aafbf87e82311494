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

TEST(WriteHexOf, ANumberIsItsLastDigits) {
    struct {
        uint32_t number;
        size_t digits;
        const wchar_t* text;
    } const cases[] = {
        {0, 2, L"00"},
        {0xA5, 2, L"A5"},
        {0x1FF, 2, L"FF"},
        {0x12AB, 4, L"12AB"},
        {0xFFFFFFFF, 8, L"FFFFFFFF"},
        {1, 0, L""},
        {1, 10, L"0000000001"},
    };
    for (const auto& c : cases) {
        std::wstring text(c.digits, L'#');
        WriteHex(text.data(), c.digits, c.number);
        EXPECT_EQ(text, c.text) << c.number << " in " << c.digits;
    }
}

TEST(ConfigChecksum, CountsTheFieldsThatAreThere) {
    struct {
        const char* text;
        bool good;
    } const cases[] = {
        {"00:x:01:02:03:F9", true},
        {"00:x:01:02:03:F8", false},
        {"FF:x:FF", true},
        {"FF:x:FF::::77", true},
        {"FF:x", false},
        {"", false},
        {"00:x:80:7F", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(HasConfigChecksum(wxSplit(c.text, ':', '\\')), c.good) << c.text;
}
