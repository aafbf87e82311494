#include "catalogue/AsciiText.h"

#include <gtest/gtest.h>

TEST(AsciiText, IsTheSameOnlyWholeAndInItsCase) {
    struct Line {
        wxString text;
        const char* ascii;
        bool same, begins;
    };
    const Line lines[] = {
        {"OFF", "OFF", true, true},
        {"", "", true, true},
        {"OFF", "OF", false, true},
        {"OF", "OFF", false, false},
        {"off", "OFF", false, false},
        {"", "N", false, false},
        {"N", "", false, true},
        {"P-3", "P-", false, true},
        {"xP-3", "P-", false, false},
        {wxString::FromUTF8("\xC5\x8E"), "N", false, false},
        {wxString::FromUTF8("N\xC3\xA9"), "N", false, true},
    };
    for (const Line& line : lines) {
        EXPECT_EQ(IsText(line.text, line.ascii), line.same) << line.text << " and " << line.ascii;
        EXPECT_EQ(BeginsWith(line.text, line.ascii), line.begins) << line.text << " and " << line.ascii;
    }
}

TEST(AsciiText, IsMadeOfAnyNumberOfCharacters) {
    for (const size_t length : {0u, 1u, 3u, 4u, 127u, 128u, 129u, 5000u}) {
        std::string ascii;
        for (size_t i = 0; i < length; ++i)
            ascii += static_cast<char>('0' + i % 64);
        const wxString text = TextOfAscii(ascii);
        EXPECT_EQ(text.length(), length);
        EXPECT_TRUE(IsText(text, ascii)) << length;
    }
}

TEST(AsciiText, HasNoByteAbove127) {
    EXPECT_TRUE(IsAscii(""));
    EXPECT_TRUE(IsAscii("OFF \x7F\x01"));
    EXPECT_FALSE(IsAscii("OFF\x80"));
    EXPECT_FALSE(IsAscii("\xC3\xA9"));
}
