#include "editing/CellChecks.h"

#include "catalogue/RadioTables.h"

#include <gtest/gtest.h>

using namespace RadioCatalogue;

TEST(ScanText, AddsTheBitOfEveryMark) {
    struct Line {
        const char *text, *mask;
    };
    for (const Line& line : std::initializer_list<Line>{{"1_3__", "5"},
                                                        {"_____", "0"},
                                                        {"12345", "31"},
                                                        {"1____", "1"},
                                                        {"_2___", "2"},
                                                        {"__3__", "4"},
                                                        {"___4_", "8"},
                                                        {"____5", "16"},
                                                        {"     ", "31"},
                                                        {"lllll", "31"},
                                                        {"____567", "16"}})
        EXPECT_EQ(ScanTextToMask(line.text).utf8_string(), line.mask) << '"' << line.text << '"';
}

TEST(ScanText, WithALockOutIsNoListAtAll) {
    for (const char* text : {"L", "L2345", "12L45", "1234L", "_L"})
        EXPECT_EQ(ScanTextToMask(text), "0") << '"' << text << '"';
}

TEST(ScanText, OfFourCharactersAddsNothingForTheFifth) {
    EXPECT_EQ(ScanTextToMask("1234"), "15");
    EXPECT_EQ(ScanTextToMask("____"), "0");
    EXPECT_EQ(ScanTextToMask(""), "0");
}

TEST(DescriptionCharacters, OfAllTypesAreLettersDigitsAndAFewSigns) {
    const std::string good = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-./:+ ?_";
    for (int type : {0, 3, 4, 5, 6, 7})
        for (int code = 0; code < 400; ++code) {
            const bool expected = code > 0 && code < 128 && good.find(static_cast<char>(code)) != good.npos;
            EXPECT_EQ(IsDescChar(wxUniChar(code), type), expected) << "type " << type << ", code " << code;
        }
}

TEST(DescriptionCharacters, OfP25AreEveryCodeFromBlankToZ) {
    for (int type : {1, 2})
        for (int code = 0; code < 400; ++code)
            EXPECT_EQ(IsDescChar(wxUniChar(code), type), code >= 32 && code <= 122)
                << "type " << type << ", code " << code;
}

TEST(HexDigits, OfAShorterTextArePaddedWithZeros) {
    EXPECT_EQ(HexDigitsText("ab", 4).value(), "00ab");
    EXPECT_EQ(HexDigitsText("1", 4).value(), "0001");
    EXPECT_EQ(HexDigitsText("F3", 3).value(), "0F3");
    EXPECT_EQ(HexDigitsText("293", 3).value(), "293");
    EXPECT_EQ(HexDigitsText("FFFF", 4).value(), "FFFF");
}

TEST(HexDigits, AreNothingElse) {
    for (const char* text :
         {"", " ", "g", "000G", "00 1", "-001", "0x01", "\xC2\xB9", "\xEF\xBC\x91\x32\x33"})
        EXPECT_FALSE(HexDigitsText(wxString::FromUTF8(text), 4)) << '"' << text << '"';
}
