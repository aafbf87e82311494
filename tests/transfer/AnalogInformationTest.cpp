#include "transfer/AnalogInformation.h"

#include <gtest/gtest.h>

#include <string>

TEST(AnalogInformationBlock, GivesItsFieldsToTheirPlaces) {
    const AnalogInformation block = ParseInformation("A1.23:SN0042:150:17:abc:def:ghi");
    EXPECT_EQ(block.productCode, 10u);
    EXPECT_EQ(block.version.utf8_string(), "1.23");
    EXPECT_EQ(block.serial.utf8_string(), "SN0042");
    EXPECT_EQ(block.rowCount, 150);
    EXPECT_EQ(block.configCount, 17);
    EXPECT_EQ(block.field4.utf8_string(), "abc");
    EXPECT_EQ(block.field5.utf8_string(), "def");
    EXPECT_EQ(block.fields.size(), 7u);
}

TEST(AnalogInformationBlock, OfAnUnknownRadioHasTwoHundredRows) {
    EXPECT_STREQ(UnknownInformation, " UNKNOWN:UNKNOWN:200:0:UNKNOWN:UNKNOWN:");
    const AnalogInformation block = ParseInformation(UnknownInformation);
    EXPECT_EQ(block.productCode, 0u);
    EXPECT_EQ(block.version.utf8_string(), "UNKNOWN");
    EXPECT_EQ(block.serial.utf8_string(), "UNKNOWN");
    EXPECT_EQ(block.rowCount, 200);
    EXPECT_EQ(block.configCount, 0);
    EXPECT_EQ(block.field4.utf8_string(), "UNKNOWN");
    EXPECT_EQ(block.field5.utf8_string(), "UNKNOWN");
}

TEST(AnalogInformationBlock, OfAnOlderRadioGetsTheFieldsThatItLacks) {
    for (const char* mark : {"T", "Y"}) {
        const AnalogInformation block = ParseInformation(wxString("32.0:") + mark + ":last");
        EXPECT_EQ(block.productCode, 3u) << mark;
        EXPECT_EQ(block.version.utf8_string(), "2.0") << mark;
        EXPECT_EQ(block.serial.utf8_string(), "UNKNOWN") << mark;
        EXPECT_EQ(block.rowCount, 200) << mark;
        EXPECT_EQ(block.configCount, 11) << mark;
        EXPECT_EQ(block.field4.utf8_string(), mark);
        EXPECT_EQ(block.field5.utf8_string(), "last") << mark;
    }
    EXPECT_EQ(ParseInformation("32.0:TY:5").serial.utf8_string(), "TY");
}

TEST(AnalogInformationBlock, TakesAnyHexadecimalDigitForAProductCode) {
    struct {
        const char* block;
        unsigned code;
        const char* version;
    } const cases[] = {
        {"01.0:", 0, "1.0"}, {"91.0:", 9, "1.0"}, {"a1.0:", 10, "1.0"}, {"F1.0:", 15, "1.0"},
        {"g1.0:", 0, "1.0"}, {"-1.0:", 0, "1.0"}, {"X:", 0, ""},        {"", 0, ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ParseInformation(c.block).productCode, c.code) << c.block;
        EXPECT_EQ(ParseInformation(c.block).version.utf8_string(), c.version) << c.block;
    }
}

TEST(AnalogInformationBlock, KeepsAnEscapedColonInItsField) {
    const AnalogInformation block = ParseInformation("11.0:S\\:N:7:8");
    EXPECT_EQ(block.serial.utf8_string(), "S:N");
    EXPECT_EQ(block.rowCount, 7);
    EXPECT_EQ(block.configCount, 8);
}

TEST(AnalogInformationBlock, OfAnyTextIsRead) {
    for (const wxString& text : {wxString(), wxString(":"), wxString(":::::::::"), wxString("T"),
                                 wxString(":T"), wxString('x', 10000), wxString(':', 10000)}) {
        const AnalogInformation block = ParseInformation(text);
        EXPECT_LE(block.productCode, 15u) << text.utf8_string();
    }
    EXPECT_EQ(ParseInformation("1:S:99999999999:x").rowCount, INT32_MAX);
    EXPECT_EQ(ParseInformation("1:S:99999999999:x").configCount, 0);
}

TEST(PibNumber, IsThatOfTheRadio) {
    const int expected[20] = {2, 2, 0, 4, 1, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 10, 10};
    for (int radio = 0; radio < 20; ++radio)
        EXPECT_EQ(GetPibNumber(radio), expected[radio]) << "radio " << radio;
    EXPECT_EQ(GetPibNumber(-1), 0);
    EXPECT_EQ(GetPibNumber(20), 0);
}
