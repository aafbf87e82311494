#include "transfer/TRecord.h"

#include "transfer/TRecordCodec.h"
#include "transfer/TRecordFields.h"
#include "transfer/TRecordMessages.h"
#include "transfer/TransferContext.h"

#include <gtest/gtest.h>
#include <wx/datetime.h>

#include <string>

namespace {

std::string Text(const wxString& text) {
    return text.utf8_string();
}

} // namespace

TEST(TRecord, HexFieldIsTheEndOfEightDigits) {
    struct {
        int64_t value;
        size_t digits;
        const char* field;
    } const cases[] = {
        {0, 2, "00"},        {10, 2, "0A"},
        {255, 2, "FF"},      {256, 2, "00"},
        {-1, 2, "FF"},       {-267, 2, "F5"},
        {502, 4, "01F6"},    {65536, 4, "0000"},
        {-1, 4, "FFFF"},     {9999999, 8, "0098967F"},
        {-1, 8, "FFFFFFFF"}, {0x123456789, 8, "23456789"},
        {1, 9, "00000001"},  {1, 0, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Text(HexField(c.value, c.digits)), c.field) << c.value << " in " << c.digits;
}

TEST(TRecord, ChecksumIsTheOnesComplementOfTheBytesBehindTheType) {
    struct {
        const char* line;
        int checksum;
    } const cases[] = {
        {"T204000000", 0xFB}, {"T9030000", 0xFC}, {"X904000000", 0xFB}, // letter and type don't count
        {"T2", 0xFF},         {"", 0xFF},         {"T2FF", 0x00},
        {"T2FF01", 0xFF},     {"T2FFFF", 0x01},   {"T2048", 0xFB}, // half a byte doesn't count
    };
    for (const auto& c : cases)
        EXPECT_EQ(TRecordChecksum(c.line), c.checksum) << c.line;
}

TEST(TRecord, MessagesAreTheseLinesOnTheWire) {
    struct {
        const char* name;
        wxString message;
        const char* line;
        const char* checksum;
    } const cases[] = {
        {"hello 0", "T007000020030000", "T007000020030000", "D5"},
        {"hello 1", "T007000021030000", "T007000021030000", "D4"},
        {"hello 2", "T007000022030000", "T007000022030000", "D3"},
        {"ACK", AckRecord, "T204000000", "FB"},
        {"NAK", NakRecord, "T204000001", "FA"},
        {"WAIT", WaitRecord, "T204000002", "F9"},
        {"MSG_PURGE", MSG_PURGE, "T204000011", "EA"},
        {"MSG_RID", MSG_RID, "T204000020", "DB"},
        {"MSG_RVER", MSG_RVER, "T204000022", "D9"},
        {"MSG_UPLD", MSG_UPLD, "T204000024", "D7"},
        {"MSG_DNLD", MSG_DNLD, "T204000025", "D6"},
        {"MSG_DBLOG", MSG_DBLOG, "T204000030", "CB"},
        {"hardware query", HardwareQuery, "T204000031", "CA"},
        {"speed change", SpeedChange, "T2060000320480", "43"},
        {"op-mode query", OpModeQuery, "T204000033", "C8"},
        {"MSG_UPLDSWCFG", MSG_UPLDSWCFG, "T204000034", "C7"},
        {"configuration write", ConfigWrite, "T204000035", "C6"},
        {"end", EndRecord, "T9030000", "FC"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Text(c.message), c.line) << c.name;
        EXPECT_EQ(Text(WithChecksum(c.message)), std::string(c.line) + c.checksum) << c.name;
        EXPECT_TRUE(HasGoodChecksum(WithChecksum(c.message))) << c.name;
    }
}

TEST(TRecord, MessagesWithDataBeginWithThese) {
    struct {
        const char* name;
        wxString begin;
        const char* data;
        const char* line;
    } const cases[] = {
        // 0B 00 00 21 20 26 11 21 00 19 07: C4
        {"MSG_SID", MSG_SID, "20261121001907",
         "T20B00002120261121001907"
         "3B"},
        // 07 00 00 23 and six bytes, which the checksum counts as pairs of digits
        {"version reply", VersionReply, "020001",
         "T207000023020001"
         "D2"},
        {"all modes", OpModeReply, "70",
         "T20500003370"
         "57"},
        {"wide mode alone", OpModeReply, "40",
         "T20500003340"
         "87"},
        {"narrow mode alone", OpModeReply, "20",
         "T20500003320"
         "A7"},
        {"digital mode alone", OpModeReply, "10",
         "T20500003310"
         "B7"},
        {"configuration count", ConfigReply, "0A",
         "T2050000340A"
         "BC"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Text(WithChecksum(c.begin + c.data)), c.line) << c.name;
}

TEST(TRecord, ChecksumOfALineIsLookedAt) {
    struct {
        const char* line;
        bool good;
    } const cases[] = {
        {"T204000000FB", true},
        {"T204000000fb", true},
        {"T204000000FA", false},
        {"T204000001FB", false},
        {"T20400000FB", true}, // a half byte before the checksum doesn't count
        {"T204000000F", false},
        {"T204000000 B", false},
        {"T204000000-5", false},
        {"T9030000FC", true},
        {"T203000000FC", true}, // the count isn't compared with the length
        {"T", false},
        {"", false},
        {"T2FF", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(HasGoodChecksum(c.line), c.good) << c.line;
}

TEST(TRecord, ChecksumIsWrongWithNoiseThatAddsNothing) {
    wxString line = WithChecksum("T20B00002120240131235959");
    ASSERT_TRUE(HasGoodChecksum(line));
    line.insert(10, "{z");
    EXPECT_EQ(TRecordChecksum(line.Left(line.length() - 2)), TRecordChecksum("T20B00002120240131235959"));
    EXPECT_FALSE(HasGoodChecksum(line));
}

TEST(TRecord, AckIsKnownByItsWholeTextOnceTheChecksumIsGone) {
    wxString line = "T204000000FB";
    ASSERT_TRUE(HasGoodChecksum(line));
    line.RemoveLast(2);
    EXPECT_EQ(line, AckRecord);
}

TEST(TRecord, TextOfADataRecordBeginsAtItsData) {
    struct {
        const char* line;
        wxString text;
    } const cases[] = {
        {"T107000041424320", "ABC "},
        {"T1030000", ""},
        {"T1", ""},
        {"", ""},
        {"T10400004", ""},
        {"T1050000414", "A"},
        {"T105000041zz42", "AB"},
        {"T1050000414z4-42", "AB"},
        {"T104000061", "a"},
        {"T1040000B0", wxString(wxUniChar(0xB0))},
        {"T1050000410A", "A\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Text(HexToText(c.line)), Text(c.text)) << c.line;
}

TEST(TRecord, StampIsTheLocalTime) {
    const wxDateTime before = wxDateTime::Now();
    const wxString stamp = MakeRadioStamp();
    const wxDateTime after = wxDateTime::Now();
    ASSERT_EQ(stamp.length(), 14u) << stamp;
    wxDateTime made;
    wxString::const_iterator end;
    ASSERT_TRUE(made.ParseFormat(stamp, "%Y%m%d%H%M%S", &end)) << stamp;
    EXPECT_TRUE(made.IsBetween(before.Subtract(wxTimeSpan::Seconds(1)), after)) << stamp;
}

TEST(EraseRecord, IsMadeForTheRowsThatTheRadioLetsBeErased) {
    struct {
        uint32_t version;
        int row;
        const char* line;
    } const cases[] = {
        {1, 0, ""},
        {1, 1, ""},
        {1, 2, "T204000210"},
        {1, 230, "T20400E610"},
        {1, 231, ""},
        {1, 500, ""},
        {1, 501, ""},
        {2, 0, ""},
        {2, 1, ""},
        {2, 2, "T204000210"},
        {2, 230, "T20400E610"},
        {2, 231, "T20400E710"},
        {2, 500, "T20401F410"},
        {2, 501, ""},
        {2, 502, ""},
        {2, -1, ""},
    };
    for (const auto& c : cases) {
        TRecordContext context;
        context.RecordVersion = c.version;
        wxString out = "former";
        encodeEraseRecord(context, c.row, out);
        EXPECT_EQ(Text(out), c.line) << "V" << c.version << " row " << c.row;
    }
}

TEST(EraseRecord, GoesOutWithItsChecksum) {
    TRecordContext context;
    wxString out;
    encodeEraseRecord(context, 2, out);
    EXPECT_EQ(Text(WithChecksum(out)), "T204000210E9"); // 04 + 00 + 02 + 10 = 16
}

TEST(ConfigRecord, HoldsTheCharactersOfTheText) {
    struct {
        wxString text;
        const char* line;
    } const cases[] = {
        {"", "T1030000"},
        {"A", "T104000041"},
        {"1:AB c", "T1090000313A41422063"},
        {"~\n", "T10500007E0A"},
    };
    for (const auto& c : cases) {
        TRecordContext context;
        wxString out = "former";
        encodeConfigRecord(context, c.text, out);
        EXPECT_EQ(Text(out), c.line) << Text(c.text);
    }
}

TEST(ConfigRecord, ComesBackAsItsText) {
    TRecordContext context;
    wxString out;
    encodeConfigRecord(context, "00:CFG:0102:03:FF:F9", out);
    EXPECT_EQ(Text(out.Left(8)), "T1170000");
    EXPECT_EQ(Text(HexToText(out)), "00:CFG:0102:03:FF:F9");
}

TEST(ConfigText, IsWholeWhenItsSumsMakeAMultipleOf256) {
    struct {
        const char* text;
        bool good;
    } const cases[] = {
        // 01 + 02 + 03 + 04 + F5 + 1 = 100
        {"00:name:0102:03:04:F5", true},
        {"00:name:0102:03:04:F4", false},
        {"00:name:0102:03:04:F6", false},
        {"zz:FFFFFF:0102:03:04:F5", true},    // fields before field 2 don't count
        {"00:name:0102:03:04:F5:1234", true}, // nor do fields after field 5
        {"00:na\\:me:0102:03:04:F5", true},   // a colon within a field
        {"00:na:me:0102:03:04:F5", false},
        {"::FF:::", true},
        {"::FFFF:01::", true},
        {"::::::", false},
        {"::FF", false}, // a field is missing
        {"::FF::", false},
        {"", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(IsGoodConfigText(c.text), c.good) << c.text;
}

TEST(TRecordLayout, FollowsItselfWithoutAGapToTheChecksum) {
    const std::pair<const char*, std::span<const TRecordField>> layouts[] = {{"V1", TRecordV1},
                                                                             {"V2", TRecordV2}};
    for (const auto& [name, layout] : layouts) {
        size_t position = 0;
        for (const TRecordField& field : layout) {
            EXPECT_EQ(field.position, position) << name;
            position += field.width;
        }
        EXPECT_EQ(position, 136u) << name;
    }
}
