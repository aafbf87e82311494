// Effects of a transfer on a page other than its records: the choice of the layout, flags, the gauge.
#include "editing/ColumnChecks.h"
#include "tests/transfer/TRecordPage.h"
#include "transfer/DebugLog.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TRecordCodec.h"

#include <wx/gauge.h>

using namespace trecordtest;

namespace {

class TRecordGrid : public TRecordPage {
protected:
    std::string Line(uint32_t version, int row) {
        m_context.RecordVersion = version;
        wxString out = "former";
        encodeTrecord(m_context, CurrentGrid(), row, out);
        return out.utf8_string();
    }

    /// The zones of the page's occupied slots, with a name for each slot.
    static std::string SlotText() {
        std::string text;
        for (int zone = 0; zone < ZonesPerPage; ++zone)
            for (int slot = 0; slot < ZoneSlotsOf(0)[zone]; ++slot)
                text += (text.empty() ? "" : " ") + GetZoneName(zone).utf8_string();
        return text;
    }
};

} // namespace

TEST_F(TRecordGrid, GoesOutInV2OnlyWhenTheRadioHasIt) {
    Open(Kdrv716B);
    Fill(7, Sample, {{MNUM, "499"}});
    EXPECT_EQ(Line(2, 7).substr(0, 20), "T143"
                                        "0007"
                                        "0000"
                                        "0005"
                                        "01F3"); // row, flags, primary, number
    for (const uint32_t version : {0u, 1u, 3u})
        EXPECT_EQ(Line(version, 7).substr(0, 14), "T143"
                                                  "01F3"
                                                  "00"
                                                  "05"
                                                  "F3")
            << version;
    EXPECT_EQ(Line(2, 300).length(), 136u);
    EXPECT_EQ(Line(1, 300), "");
}

TEST_F(TRecordGrid, IsReadAsV1OnlyWhenTheRadioHasIt) {
    struct {
        uint32_t version;
        int row;
    } const cases[] = {{0, 231}, {1, 501}, {2, 231}, {3, 231}};
    for (const auto& c : cases) {
        Open(Kdrv716B);
        m_context.RecordVersion = c.version;
        EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), "T14300E7"), 1);
        for (int row : {231, 501})
            EXPECT_EQ(Cell(row, TFLG).starts_with("C"), row == c.row) << "V" << c.version << " row " << row;
    }
}

TEST_F(TRecordGrid, RefusesARowBehindItsLastInBothLayouts) {
    Open(Kdrv716B);
    const wxArrayString before = AllCells();
    m_context.RecordVersion = 1;
    EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), "T14300E9"), 0);
    m_context.RecordVersion = 2;
    EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), "T14301F7"), 0);
    EXPECT_TRUE(AllCells() == before);
}

TEST_F(TRecordGrid, ThatComesTwiceHoldsOneZoneSlot) {
    for (const uint32_t version : {1u, 2u}) {
        SCOPED_TRACE(version);
        Open(Kdrv716B);
        ZoneSlots.fill(0);
        m_context.RecordVersion = version;
        Fill(7, Sample, {{MNUM, "007"}, {ZONE, "3"}});
        const std::string third = Line(version, 7);
        SetCell(7, ZONE, "5");
        const std::string fifth = Line(version, 7);
        SetCell(7, MFLG, "01");
        const std::string shadow = Line(version, 7);
        Blank(7);
        const auto read = [&](const std::string& line) {
            EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), line), 1);
            return Cell(7, ZONE).utf8_string() + ": " + SlotText();
        };
        EXPECT_EQ(read(third), "3: 3");
        EXPECT_EQ(read(third), "3: 3") << "the same again";
        EXPECT_EQ(read(fifth), "5: 5") << "another zone";
        EXPECT_EQ(read(shadow), ": ") << "a shadow's";
        EXPECT_EQ(read(shadow), ": ") << "a shadow's again";
        EXPECT_EQ(read(third), "3: 3") << "a plain one again";
    }
}

TEST_F(TRecordGrid, ThatComesTwiceTakesNoOtherRowsSlotAlsoWhereItFoundItsZoneFull) {
    Open(Kdrv716B);
    ZoneSlots.fill(0);
    m_context.RecordVersion = 2;
    // The last of the 17 rows finds the zone full: it shows the zone but holds no slot of it.
    for (int row = 10; row <= 26; ++row) {
        Fill(row, Sample, {{ZONE, "3"}});
        const std::string line = Line(2, row);
        Blank(row);
        EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), line), 1);
    }
    ASSERT_EQ(ZoneSlotsOf(0)[2], 16);
    ASSERT_EQ(Cell(26, ZONE), "3");
    SetCell(26, ZONE, "5");
    const std::string fifth = Line(2, 26);
    SetCell(26, ZONE, "3");
    EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), fifth), 1);
    EXPECT_EQ(Cell(26, ZONE), "5");
    EXPECT_EQ(ZoneSlotsOf(0)[2], 16) << "16 rows still hold their slots";
    EXPECT_EQ(ZoneSlotsOf(0)[4], 1);
}

TEST_F(TRecordGrid, OfTheDefaultRowMovesNoSlot) {
    Open(Kdrv716B);
    ZoneSlots.fill(0);
    m_context.RecordVersion = 2;
    Fill(3, Sample, {{ZONE, "3"}});
    CheckZone(CurrentGrid(), 3, "3");
    SetCell(0, ZONE, "3");
    SetCell(0, TFLG, "C8");
    const std::string line = Line(2, 0);
    EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), line), 1);
    EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), line), 1);
    EXPECT_EQ(SlotText(), "3");
}

TEST_F(TRecordGrid, TransferFlagsAreAddedToThoseOfTheRow) {
    struct {
        const char* before;
        int bits;
        const char* after;
    } const cases[] = {
        {"A0", 0x01, "A1"}, {"A1", 0x01, "A1"}, {"C8", 0x03, "CB"},
        {"", 0x01, "01"},   {"", 0, "00"},      {"FF", 0x01, "FF"},
    };
    Open(Kdrv716);
    for (const auto& c : cases) {
        SetCell(5, TFLG, c.before);
        SetTFlag(CurrentGrid(), 5, c.bits);
        EXPECT_EQ(Cell(5, TFLG), c.after) << c.before << " with " << c.bits;
    }
}

TEST_F(TRecordGrid, DebugLogMovesTheMainGauge) {
    ProgressFrame progress(MainFrame);
    progress.SetRange(255);
    m_context.Progress = &progress;
    for (const auto& [address, value] : {std::pair{"0020", 1}, {"1FE0", 255}, {"2000", 0}, {"1000", 128}}) {
        m_context.RxLine = wxString("T1430") + address;
        decodeDebugLog(m_context);
        EXPECT_EQ(progress.MainGauge()->GetValue(), value) << address;
    }
    progress.SetRange(100);
    EXPECT_EQ(progress.MainGauge()->GetValue(), 100);
    decodeDebugLog(m_context); // 128 is out of range
    EXPECT_EQ(progress.MainGauge()->GetValue(), 100);
    m_context.Progress = nullptr;
}
