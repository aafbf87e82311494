#include "catalogue/TextNumbers.h"

#include <gtest/gtest.h>

#include <cstdint>

TEST(TextNumbers, DecimalIsReadAsFarAsItParses) {
    struct Line {
        const char* text;
        std::optional<int> number;
    };
    const Line lines[] = {
        {"0", 0},      {"000", 0},  {"001", 1}, {"042", 42}, {"100", 100}, {"12ab", 12},
        {"12.75", 12}, {" 7", 7},   {"+5", 5},  {"-3", -3},  {"1 2", 1},   {"2147483647", 2147483647},
        {"", {}},      {"abc", {}}, {" ", {}},  {"-", {}},   {"\t\n8", 8}, {"+-5", {}},
        {"- 5", {}},   {"0x10", 0}, {".5", {}}, {"OFF", {}}, {"n/a", {}},  {"-2147483648", INT32_MIN},
    };
    for (const Line& line : lines) {
        EXPECT_EQ(line.number, ReadNumber(line.text)) << '"' << line.text << '"';
        EXPECT_EQ(line.number.value_or(0), ReadDecimal(line.text)) << '"' << line.text << '"';
    }
}

TEST(TextNumbers, HexadecimalIsReadAsFarAsItParses) {
    struct Line {
        const char* text;
        std::optional<int> number;
    };
    const Line lines[] = {
        {"A0", 0xA0}, {"c0", 0xC0},   {"00", 0}, {"3FF", 0x3FF}, {"8", 8},
        {"0x1F", 31}, {"-0X1f", -31}, {"0x", 0}, {"0xG", 0},     {" -f", -15},
        {"1G", 1},    {"A0 ", 0xA0},  {"", {}},  {"G", {}},      {"-", {}},
    };
    for (const Line& line : lines) {
        EXPECT_EQ(line.number, ReadNumber(line.text, 16)) << '"' << line.text << '"';
        EXPECT_EQ(line.number.value_or(0), ReadHex(line.text)) << '"' << line.text << '"';
    }
}

TEST(TextNumbers, MoreThan32BitsStayOutOfEveryRange) {
    for (const char* text : {"2147483648", "4294967297", "18446744073709551617", "99999999999999999999999"})
        EXPECT_EQ(INT32_MAX, ReadDecimal(text)) << text;
    for (const char* text : {"-2147483649", "-4294967295", "-99999999999999999999999"})
        EXPECT_EQ(INT32_MIN, ReadDecimal(text)) << text;
    for (const char* text : {"80000000", "100000000", "FFFFFFFFFFFFFFFFFF"})
        EXPECT_EQ(INT32_MAX, ReadHex(text)) << text;
}

TEST(TextNumbers, CharactersOutsideAsciiAreNoDigits) {
    EXPECT_EQ(std::nullopt, ReadNumber(wxString::FromUTF8("\xEF\xBC\x91"))) << "a full-width one";
    EXPECT_EQ(4, ReadDecimal(wxString::FromUTF8("4\xC2\xB2")));
}

TEST(TextNumbers, MemoryNumbersHaveAtLeastThreeDigits) {
    EXPECT_EQ("000", NumberText(0));
    EXPECT_EQ("001", NumberText(1));
    EXPECT_EQ("042", NumberText(42));
    EXPECT_EQ("502", NumberText(502));
    EXPECT_EQ("1000", NumberText(1000));
    EXPECT_EQ("-05", NumberText(-5));
    EXPECT_EQ("-2147483648", NumberText(INT32_MIN));
}

TEST(TextNumbers, PlainNumbersHaveZerosInFrontUpToTheirWidth) {
    EXPECT_EQ("0", DecimalText(0));
    EXPECT_EQ("4294967295", DecimalText(UINT32_MAX));
    EXPECT_EQ("0000042", DecimalText(42, 7));
    EXPECT_EQ("154123400", DecimalText(154123400, 7));
    EXPECT_EQ("00FF", HexadecimalText(0xFF, 4));
    EXPECT_EQ("1000", HexadecimalText(0x1000, 3));
    EXPECT_EQ("FFFFFFFF", HexadecimalText(UINT32_MAX, 3));
}

TEST(TextNumbers, FlagsAreUpperCaseHexadecimalOfAtLeastTwoDigits) {
    EXPECT_EQ("00", FlagText(0));
    EXPECT_EQ("08", FlagText(8));
    EXPECT_EQ("A0", FlagText(0xA0));
    EXPECT_EQ("CB", FlagText(0xCB));
    EXPECT_EQ("3FF", FlagText(0x3FF));
    EXPECT_EQ("FFFFFFFF", FlagText(-1));
}
