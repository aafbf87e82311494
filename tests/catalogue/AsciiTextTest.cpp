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
        EXPECT_EQ(line.same, IsText(line.text, line.ascii)) << line.text << " and " << line.ascii;
        EXPECT_EQ(line.begins, BeginsWith(line.text, line.ascii)) << line.text << " and " << line.ascii;
    }
}
