#include "tests/catalogue/PageTest.h"
#include "tests/catalogue/PrintedColumns.h"
#include "tests/catalogue/PrintedRadios.h"

namespace {

class PageDefaults : public PageTest {
protected:
    /// Expects a row to be filled from the P25 default row, except cells with texts of its own.
    static void ExpectStartingRow(int row, int defaultRow, const std::string& zone) {
        const std::string number = row < 10 ? "00" + std::to_string(row) : std::to_string(row);
        const auto texts = printed::DefaultRow(defaultRow);
        for (int col = 0; col < 32; ++col) {
            std::string expected = texts[static_cast<size_t>(col)];
            if (col == 1 || col == 2)
                expected = number;
            else if (col == 6)
                expected = zone;
            else if (col == 7)
                expected = "VHF  " + number;
            else if (col == 31)
                expected = "A8";
            EXPECT_EQ(Cell(row, col).utf8_string(), expected)
                << "row " << row << " " << printed::Columns[static_cast<size_t>(col)].tag;
        }
    }
};

} // namespace

TEST_F(PageDefaults, OfEveryRadioAndBandSlotStandInRowZero) {
    for (const printed::Radio& radio : printed::Radios)
        for (const printed::Slot& slot : radio.slots) {
            SCOPED_TRACE(std::string(radio.name) + " slot " + std::to_string(slot.slot));
            Retarget(radio.index, slot.slot);
            const int defaultRow = radio.index == 7 ? 9 : radio.index == 8 ? 10 : slot.band;
            const auto texts = printed::DefaultRow(defaultRow);
            for (int col = 0; col < 32; ++col)
                EXPECT_EQ(Cell(0, col).utf8_string(), texts[static_cast<size_t>(col)])
                    << printed::Columns[static_cast<size_t>(col)].tag;
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(0, DESC));
        }
}

TEST_F(PageDefaults, OfAnAnalogPageLeaveAllMemoryRowsBlank) {
    EXPECT_TRUE(FilledRows().empty()) << "the page of the start-up";
    for (const printed::Radio& radio : printed::Radios) {
        if (radio.index == 6 || radio.index == 7)
            continue;
        Retarget(radio.index, 0);
        EXPECT_TRUE(FilledRows().empty()) << radio.name;
    }
}

TEST_F(PageDefaults, OfAFirstGenerationP25PageFillRow1AndBothGuards) {
    AddPage(Kdrv716, 0);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 231, 232}));
    ExpectStartingRow(1, 4, "1");
    ExpectStartingRow(231, 4, "16");
    ExpectStartingRow(232, 4, "16");
    EXPECT_EQ(SlotsTaken(1, 0), 1);
    EXPECT_EQ(SlotsTaken(1, 15), 2);
}

TEST_F(PageDefaults, OfASecondGenerationP25PageFillRow1AndBothGuards) {
    AddPage(Kdrv716B, 0);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 501, 502}));
    ExpectStartingRow(1, 9, "1");
    ExpectStartingRow(501, 9, "X");
    ExpectStartingRow(502, 9, "X");
    EXPECT_EQ(SlotsTaken(1, 0), 1);
    EXPECT_EQ(SlotsTaken(1, 31), 2);
}

TEST_F(PageDefaults, SetTheZoneListForTheGenerationOfTheP25Page) {
    AddPage(Kdrv716, 0);
    ASSERT_EQ(RadioCatalogue::ZoneList.size(), 16u);
    EXPECT_EQ(RadioCatalogue::ZoneList.Last(), "16");
    AddPage(Kdrv716B, 0);
    ASSERT_EQ(RadioCatalogue::ZoneList.size(), 32u);
    EXPECT_EQ(RadioCatalogue::ZoneList.Last(), "X");
    AddPage(Krv214, 0);
    EXPECT_EQ(RadioCatalogue::ZoneList.size(), 32u) << "an analog page leaves the list alone";
    AddPage(Kdrv716, 0);
    EXPECT_EQ(RadioCatalogue::ZoneList.size(), 16u);
}

TEST_F(PageDefaults, NameZonesByTheirOwnTypeSoThatGuardsNeverLoseTheirZoneToAnEarlierPage) {
    AddPage(Kdrv716, 0);
    AddPage(Kdrv716B, 0);
    EXPECT_EQ(Cell(1, ZONE), "1");
    EXPECT_EQ(Cell(501, ZONE), "X") << "the page before has 16 zones";
    EXPECT_EQ(Cell(502, ZONE), "X");
}

TEST_F(PageDefaults, LeaveNothingSelected) {
    AddPage(Kdrv716, 0);
    EXPECT_FALSE(CurrentGrid()->IsSelection());
}

TEST_F(PageDefaults, FillNoRowThatIsSelectedAtThatMoment) {
    // A departure: selected rows would otherwise be overwritten without a warning.
    AddPage(Kdrv716, 0);
    SetCell(7, DESC, "KEEP ME");
    SelectRows({7});
    SetPageDefaults(MainFrame, CurrentPage);
    EXPECT_EQ(Cell(7, DESC), "KEEP ME");
    EXPECT_EQ(Cell(7, MNUM), "");
}

TEST_F(PageDefaults, ReplaceWhatTheDefaultRowHeld) {
    for (int col = 0; col < 32; ++col)
        SetCell(0, col, "other");
    SetPageDefaults(MainFrame, CurrentPage);
    EXPECT_EQ(Cell(0, DESC), "LOW    66");
    EXPECT_EQ(Cell(0, RSQL), "");
    EXPECT_EQ(Cell(0, TFLG), "A0");
}

TEST_F(PageDefaults, LockTheNumberOfTheDefaultRow) {
    CurrentGrid()->SetReadOnly(0, MNUM, false);
    SetPageDefaults(MainFrame, CurrentPage);
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
}
