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
        EXPECT_EQ(ReadNumber(line.text), line.number) << '"' << line.text << '"';
        EXPECT_EQ(ReadDecimal(line.text), line.number.value_or(0)) << '"' << line.text << '"';
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
        EXPECT_EQ(ReadNumber(line.text, 16), line.number) << '"' << line.text << '"';
        EXPECT_EQ(ReadHex(line.text), line.number.value_or(0)) << '"' << line.text << '"';
    }
}

TEST(TextNumbers, MoreThan32BitsStayOutOfEveryRange) {
    for (const char* text : {"2147483648", "4294967297", "18446744073709551617", "99999999999999999999999"})
        EXPECT_EQ(ReadDecimal(text), INT32_MAX) << text;
    for (const char* text : {"-2147483649", "-4294967295", "-99999999999999999999999"})
        EXPECT_EQ(ReadDecimal(text), INT32_MIN) << text;
    for (const char* text : {"80000000", "100000000", "FFFFFFFFFFFFFFFFFF"})
        EXPECT_EQ(ReadHex(text), INT32_MAX) << text;
}

TEST(TextNumbers, CharactersOutsideAsciiAreNoDigits) {
    EXPECT_EQ(ReadNumber(wxString::FromUTF8("\xEF\xBC\x91")), std::nullopt) << "a full-width one";
    EXPECT_EQ(ReadDecimal(wxString::FromUTF8("4\xC2\xB2")), 4);
}

TEST(TextNumbers, MemoryNumbersHaveAtLeastThreeDigits) {
    EXPECT_EQ(NumberText(0), "000");
    EXPECT_EQ(NumberText(1), "001");
    EXPECT_EQ(NumberText(42), "042");
    EXPECT_EQ(NumberText(502), "502");
    EXPECT_EQ(NumberText(1000), "1000");
    EXPECT_EQ(NumberText(-5), "-05");
    EXPECT_EQ(NumberText(INT32_MIN), "-2147483648");
}

TEST(TextNumbers, PlainNumbersHaveZerosInFrontUpToTheirWidth) {
    EXPECT_EQ(DecimalText(0), "0");
    EXPECT_EQ(DecimalText(UINT32_MAX), "4294967295");
    EXPECT_EQ(DecimalText(42, 7), "0000042");
    EXPECT_EQ(DecimalText(154123400, 7), "154123400");
    EXPECT_EQ(HexadecimalText(0xFF, 4), "00FF");
    EXPECT_EQ(HexadecimalText(0x1000, 3), "1000");
    EXPECT_EQ(HexadecimalText(UINT32_MAX, 3), "FFFFFFFF");
}

TEST(TextNumbers, FlagsAreUpperCaseHexadecimalOfAtLeastTwoDigits) {
    EXPECT_EQ(FlagText(0), "00");
    EXPECT_EQ(FlagText(8), "08");
    EXPECT_EQ(FlagText(0xA0), "A0");
    EXPECT_EQ(FlagText(0xCB), "CB");
    EXPECT_EQ(FlagText(0x3FF), "3FF");
    EXPECT_EQ(FlagText(-1), "FFFFFFFF");
}

TEST(TextNumbers, PlainDecimalIsOneTextForEachValue) {
    const struct {
        const char* text;
        const char* plain; ///< null: no decimal
    } lines[] = {
        {"154.45250", "154.4525"},
        {"154.4525", "154.4525"},
        {"154,4525", "154.4525"},
        {"0154.4525", "154.4525"},
        {"151", "151"},
        {"151.", "151"},
        {"151.000", "151"},
        {".5", "0.5"},
        {"023", "23"},
        {"000", "0"},
        {"0", "0"},
        {"0.0", "0"},
        {"100", "100"},
        {"", nullptr},
        {".", nullptr},
        {"1.2.3", nullptr},
        {"1,234.5", nullptr},
        {"-5", nullptr},
        {"OFF", nullptr},
        {"12 ", nullptr},
    };
    for (const auto& line : lines) {
        const std::optional<wxString> plain = PlainDecimal(line.text);
        EXPECT_EQ(plain.has_value(), line.plain != nullptr) << '"' << line.text << '"';
        EXPECT_EQ(plain.value_or(""), line.plain ? line.plain : "") << '"' << line.text << '"';
    }
}

TEST(TextNumbers, WholeNumberIsMadeOfDigitsAndInItsRange) {
    EXPECT_EQ(WholeNumber("15", 0, 15), 15);
    EXPECT_EQ(WholeNumber("007", 0, 15), 7);
    EXPECT_EQ(WholeNumber("0", 0, 15), 0);
    for (const char* text : {"16", "", "-1", "+5", " 5", "5 ", "5.0", "x", "99999999999999"})
        EXPECT_EQ(WholeNumber(text, 0, 15), std::nullopt) << '"' << text << '"';
}
