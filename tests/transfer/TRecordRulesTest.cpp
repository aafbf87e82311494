// Rules of a memory record that involve several cells: a shadow's primary, and whether a row is scanned.
#include "catalogue/RadioCatalogue.h"
#include "transfer/TRecordFields.h"

#include <gtest/gtest.h>

using namespace RadioCatalogue;

namespace {

class TRecordRules : public ::testing::Test {
protected:
    TRecordRules() {
        FillChoiceLists();
        m_source.row = 12;
        m_source.gridRows = 503;
        m_source.type = NP25;
        m_source.cells[MNUM] = m_source.cells[PRIM] = "012";
    }

    /// Characters of the row's record.
    std::string V1(size_t position, size_t width) { return Part(TRecordV1, position, width); }
    std::string V2(size_t position, size_t width) { return Part(TRecordV2, position, width); }

    TRecordSource m_source;

private:
    std::string Part(std::span<const TRecordField> layout, size_t position, size_t width) {
        return MakeTRecord(layout, m_source).Mid(position, width).utf8_string();
    }
};

} // namespace

TEST_F(TRecordRules, ThePrimaryOfAShadowIsTheNumberInShadSoThatACheckedPageKeepsItsLinks) {
    const struct {
        const char *flags, *shad, *prim;
        int number;
    } cases[] = {
        {"01", "S-010", "012", 10}, {"07", "S-229", "012", 229}, {"14", "S-010", "012", 10},
        {"61", "S-7", "012", 7},    {"01", "S-010x", "012", 10}, {"00", "S-010", "012", 12},
        {"10", "S-010", "012", 12}, {"08", "S-010", "012", 12},  {"", "S-010", "012", 12},
        {"10", "P-3", "012", 12},   {"01", "N", "010", 10},      {"01", "", "010", 10},
        {"01", "S-", "010", 10},    {"01", "S-000", "010", 10},  {"01", "S-abc", "010", 10},
        {"01", "S--5", "010", 10},  {"01", "P-3", "010", 10},    {"01", "S-010", "", 10},
        {"01", "N", "", 0},         {"00", "N", "abc", 0},       {"02", "s-010", "012", 12},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PrimaryNumber(c.flags, c.shad, c.prim), c.number)
            << c.flags << " " << c.shad << " " << c.prim;
}

TEST_F(TRecordRules, ThePrimaryOfAShadowGoesOutInBothLayouts) {
    m_source.cells[MFLG] = "02";
    m_source.cells[SHAD] = "S-010";
    EXPECT_EQ(V1(10, 2), "0A");
    EXPECT_EQ(V1(12, 2), "0C");
    EXPECT_EQ(V2(12, 4), "000A");
    EXPECT_EQ(V2(16, 4), "000C");
    m_source.cells[MFLG] = "00";
    EXPECT_EQ(V1(10, 2), "0C");
    EXPECT_EQ(V2(12, 4), "000C");
}

TEST_F(TRecordRules, ThePrimaryOfAGuardRowIsMovedInTheOldLayoutWhereverItComesFrom) {
    m_source.row = 501;
    m_source.cells[MNUM] = m_source.cells[PRIM] = "501";
    EXPECT_EQ(V1(10, 2), "E7");
    EXPECT_EQ(V2(12, 4), "01F5");
    m_source.cells[MFLG] = "01";
    m_source.cells[SHAD] = "S-502";
    EXPECT_EQ(V1(10, 2), "E8");
    EXPECT_EQ(V2(12, 4), "01F6");
}

TEST_F(TRecordRules, ScanTellsTheScanFlagSoThatWhatIsSeenIsWhatTheRadioScans) {
    const struct {
        const char *flags, *scan;
        int sent;
    } cases[] = {
        {"00", "Y", 0x08}, {"08", "Y", 0x08},   {"08", "N", 0x00},   {"00", "N", 0x00}, {"68", "", 0x60},
        {"60", "Y", 0x68}, {"368", "N", 0x360}, {"300", "Y", 0x308}, {"", "Y", 0x08},   {"", "", 0x00},
        {"08", "y", 0x00}, {"08", "Yes", 0x00}, {"18", "N", 0x18},   {"10", "Y", 0x10}, {"01", "Y", 0x01},
        {"0C", "N", 0x0C}, {"7F", "N", 0x7F},   {"17", "Y", 0x17},
    };
    for (const int type : {RP25, NP25})
        for (const auto& c : cases) {
            m_source.type = type;
            m_source.cells[MFLG] = c.flags;
            m_source.cells[SCAN] = c.scan;
            const std::string text = std::string(c.flags) + " " + c.scan + " " + std::to_string(type);
            EXPECT_EQ(V2(8, 4), wxString::Format("%04X", static_cast<unsigned>(c.sent))) << text;
            EXPECT_EQ(V1(8, 2), wxString::Format("%02X", static_cast<unsigned>(c.sent & 0x7F))) << text;
            EXPECT_EQ(V1(128, 2), wxString::Format("%02X", static_cast<unsigned>(c.sent >> 8))) << text;
        }
}

TEST_F(TRecordRules, TheScanFlagKeepsCompanyWithTheMarkOfTheLastRows) {
    m_source.row = 502;
    m_source.cells[SCAN] = "Y";
    EXPECT_EQ(V1(8, 2), "88");
    m_source.cells[SCAN] = "N";
    EXPECT_EQ(V1(8, 2), "80");
}

TEST_F(TRecordRules, ScanOfOtherPagesIsNoLetterAndLeavesTheFlags) {
    m_source.type = MDLX;
    for (const char* scan : {"Y", "N", "0", "31", ""}) {
        m_source.cells[SCAN] = scan;
        m_source.cells[MFLG] = "08";
        EXPECT_EQ(V2(8, 4), "0008") << scan;
        EXPECT_EQ(V1(8, 2), "08") << scan;
        m_source.cells[MFLG] = "00";
        EXPECT_EQ(V2(8, 4), "0000") << scan;
        EXPECT_EQ(V1(8, 2), "00") << scan;
    }
}
