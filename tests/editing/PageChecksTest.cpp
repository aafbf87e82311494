// Checks of a complete page, from the menu and after a change of target.
#include "commands/CommandIds.h"
#include "editing/ZelkEdit.h"
#include "tests/catalogue/PageTest.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"

#include <numeric>

using testbench::DialogScript;

namespace {

class CheckingAPage : public PageTest {
protected:
    static bool IsPainted(int row, int column) {
        return CurrentGrid()->GetCellBackgroundColour(row, column) == wxColour(235, 125, 50);
    }

    static std::vector<std::vector<std::string>> AllRows() {
        std::vector<std::vector<std::string>> rows;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            rows.push_back(RowTexts(row));
        return rows;
    }

    static std::vector<int> Counters(int page) {
        return {ZoneSlotsOf(page), ZoneSlotsOf(page) + ZonesPerPage};
    }

    static int TakenInAll(int page) {
        const auto counters = Counters(page);
        return std::accumulate(counters.begin(), counters.end(), 0);
    }

    static void ClearMemories() {
        for (int row = 1; row <= CurrentParameters().Rows; ++row)
            ClearRowData(row, false);
        ClearZoneSlots(CurrentPage);
    }

    /// Adds a P25 memory in a zone, numbered by its row.
    static void AddMemory(int row, const wxString& zone, const wxString& flags = "A0") {
        FillRowsFromDefault({row});
        SetCell(row, ZONE, zone);
        SetCell(row, TFLG, flags);
    }
};

} // namespace

TEST_F(CheckingAPage, ThatIsEmptyChangesNothing) {
    for (int radio : {Krv47, Krv214, Orv12, Kdar2000}) {
        Retarget(radio, 0);
        const auto before = AllRows();
        CheckPage();
        EXPECT_EQ(AllRows(), before) << "radio " << radio;
    }
}

TEST_F(CheckingAPage, NeverChecksTheDefaultRow) {
    for (int col = 0; col < 32; ++col)
        SetCell(0, col, "junk");
    const auto before = RowTexts(0);
    CheckPage();
    EXPECT_EQ(RowTexts(0), before);
    EXPECT_FALSE(IsPainted(0, RFRQ));
}

TEST_F(CheckingAPage, ChecksFirstLastAndGuardRows) {
    for (int row : {1, 60, 120, 121, 122})
        SetCell(row, DESC, "low");
    CheckPage();
    for (int row : {1, 60, 120, 121, 122}) {
        EXPECT_EQ(Cell(row, DESC), "LOW") << row;
        EXPECT_EQ(Cell(row, RFRQ), "66.0000") << row;
        EXPECT_TRUE(IsPainted(row, RFRQ)) << row;
    }
    EXPECT_EQ(Cell(121, RTON), "n/a");
    EXPECT_EQ(Cell(120, RTON), "OFF");
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 60, 120, 121, 122}));
}

TEST_F(CheckingAPage, ChecksARowWhoseOnlyTextIsAFlag) {
    SetCell(4, TFLG, "A0");
    CheckPage();
    EXPECT_EQ(Cell(4, RFRQ), "66.0000");
}

TEST_F(CheckingAPage, ShowsOneBoxForEveryRowWhoseNumberIsTaken) {
    for (int row : {2, 5, 9}) {
        FillRowsFromDefault({row});
        SetCell(row, MNUM, "7");
    }
    DialogScript dialogs;
    dialogs.ExpectMessage("Error", "Number already used at row: 005");
    dialogs.ExpectMessage("Error", "Number already used at row: 009");
    CheckPage();
    EXPECT_EQ(Cell(2, MNUM), "");
    EXPECT_EQ(Cell(5, MNUM), "");
    EXPECT_EQ(Cell(9, MNUM), "007") << "the last of them is alone by then";
}

TEST_F(CheckingAPage, CountsTheZonesAnewFromTheRows) {
    Retarget(Kdrv716B, 0);
    ClearMemories();
    AddMemory(3, "5", "A8");
    AddMemory(4, "5", "A8");
    AddMemory(5, "K");
    AddMemory(501, "1");
    std::fill_n(ZoneSlotsOf(CurrentPage), ZonesPerPage, 13); // as left by lost edits and deletions
    CheckPage();
    EXPECT_EQ(SlotsTaken(CurrentPage, 4), 2);
    EXPECT_EQ(SlotsTaken(CurrentPage, 22), 1);
    EXPECT_EQ(SlotsTaken(CurrentPage, 31), 1);
    EXPECT_EQ(TakenInAll(CurrentPage), 4);
    EXPECT_EQ(Cell(3, ZONE), "5");
    EXPECT_EQ(Cell(4, ZONE), "5");
    EXPECT_EQ(Cell(5, ZONE), "K");
    EXPECT_EQ(Cell(501, ZONE), "X");
    for (int row : {3, 4, 5, 501})
        EXPECT_EQ(Cell(row, TFLG), "A8") << row;
}

TEST_F(CheckingAPage, LeavesTheFirstZoneOfTheNextPageAlone) {
    AddPage(Kdrv716, 0);
    AddPage(Kdrv716, 0);
    MainFrame->m_notebook->SetSelection(1);
    testbench::PumpUntilIdle();
    ASSERT_EQ(CurrentPage, 1);
    ZoneSlotsOf(2)[0] = 9;
    CheckPage();
    EXPECT_EQ(SlotsTaken(2, 0), 9);
}

TEST_F(CheckingAPage, KeepsZonesOfTheSecondGenerationAfterAPageOfTheFirstWasMade) {
    Retarget(Kdrv716B, 0);
    ClearMemories();
    AddMemory(3, "W");
    AddPage(Kdrv716, 0);
    ASSERT_EQ(RadioCatalogue::ZoneList.size(), 16u);
    MainFrame->m_notebook->SetSelection(0);
    testbench::PumpUntilIdle();
    ASSERT_EQ(CurrentPage, 0);
    CheckPage();
    EXPECT_EQ(Cell(3, ZONE), "W");
    EXPECT_EQ(SlotsTaken(0, 30), 1);
}

TEST_F(CheckingAPage, PutsNoMoreThan16RowsIntoAZoneAsLongAsTheFirstIsNotFull) {
    Retarget(Kdrv716, 0);
    ClearMemories();
    for (int row = 1; row <= 18; ++row)
        AddMemory(row, "1");
    CheckPage();
    EXPECT_EQ(SlotsTaken(CurrentPage, 0), 16);
    EXPECT_EQ(SlotsTaken(CurrentPage, 1), 2);
    EXPECT_EQ(Cell(16, ZONE), "1");
    EXPECT_EQ(Cell(17, ZONE), "2");
    EXPECT_EQ(Cell(18, ZONE), "2");
}

TEST_F(CheckingAPage, GivesNoSlotToShadows) {
    Retarget(Kdrv716, 0);
    ClearMemories();
    AddMemory(3, "4");
    SetCell(3, MFLG, "10");
    AddMemory(4, "4", "A8");
    SetCell(4, MFLG, "01");
    SetCell(4, SHAD, "S-003");
    CheckPage();
    EXPECT_EQ(Cell(3, ZONE), "4");
    EXPECT_EQ(Cell(4, ZONE), "");
    EXPECT_EQ(Cell(4, SHAD), "S-003");
    EXPECT_EQ(TakenInAll(CurrentPage), 1);
}

TEST_F(CheckingAPage, TwiceChangesNothing) {
    for (int radio : {Kdrv716, Kdrv716B, Krv47, Kdar2000}) {
        Retarget(radio, 0);
        const char* zones[] = {"1", "2", "", "16", "X", "junk", "3", "1", "1"};
        const char* flags[] = {"A0", "A8", "", "C0", "E8"};
        for (int row = 1; row <= CurrentParameters().Rows; ++row) {
            FillRowsFromDefault({row});
            SetCell(row, ZONE, zones[row % 9]);
            SetCell(row, TFLG, flags[row % 5]);
            SetCell(row, RFRQ, row % 3 ? "140.0000" : "junk");
            SetCell(row, RSQL, row % 4 ? "x" : "");
            if (row % 7 == 0)
                SetCell(row, MFLG, "02");
        }
        CheckPage();
        const auto once = AllRows();
        const auto counters = Counters(CurrentPage);
        CheckPage();
        EXPECT_EQ(AllRows(), once) << "radio " << radio;
        EXPECT_EQ(Counters(CurrentPage), counters) << "radio " << radio;
    }
}

TEST_F(CheckingAPage, FromTheMenuSaysSoFirst) {
    SetCell(4, DESC, "low");
    wxString whileShown;
    {
        DialogScript dialogs;
        dialogs.ExpectMessage("Validate Page", "Validate row data")
            .Style(testbench::PlainBox)
            .Set([&](wxDialog*) { whileShown = Cell(4, DESC); });
        testbench::RunCommand(IdValidatePage);
        EXPECT_EQ(dialogs.Shown().size(), 1u);
    }
    EXPECT_EQ(whileShown, "low") << "checked only when the box is closed";
    EXPECT_EQ(Cell(4, DESC), "LOW");
    EXPECT_TRUE(IsPainted(4, RFRQ));
}

TEST_F(CheckingAPage, FromTheMenuTakesTheTextOfAnOpenEditorFirst) {
    testbench::ShowAndFocus(*MainFrame);
    CurrentGrid()->GoToCell(3, DESC);
    CurrentGrid()->SetFocus();
    testbench::TypeText("half");
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    DialogScript dialogs;
    dialogs.ExpectMessage("Validate Page", "Validate row data");
    testbench::RunCommand(IdValidatePage);
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
    EXPECT_EQ(Cell(3, DESC), "HALF");
}

TEST_F(CheckingAPage, FollowsAChangeOfTarget) {
    FillRowsFromDefault({4});
    SetCell(4, MNUM, "4");
    SetCell(4, MODE, "n");
    testbench::ChangeTarget(Krv305);
    EXPECT_EQ(Cell(4, MNUM), "004");
    EXPECT_EQ(Cell(4, MODE), "N");
    EXPECT_EQ(Cell(4, RFRQ), "403.0000");
    EXPECT_EQ(Cell(4, TFRQ), "512.0000");
    EXPECT_TRUE(IsPainted(4, RFRQ));
    EXPECT_TRUE(IsPainted(4, TFRQ));
    EXPECT_FALSE(IsPainted(4, MODE));
    EXPECT_EQ(FilledRows(), (std::vector<int>{4}));
}

TEST_F(CheckingAPage, AfterAChangeToAP25TargetGivesEveryKeptRowAZone) {
    for (int row : {2, 3, 40})
        FillRowsFromDefault({row});
    testbench::ChangeTarget(Kdrv716);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 2, 3, 40, 231, 232}));
    for (int row : {1, 2, 3, 40}) {
        EXPECT_EQ(Cell(row, ZONE), "1") << row;
        EXPECT_EQ(Cell(row, TFLG), "A8") << row;
    }
    EXPECT_EQ(SlotsTaken(CurrentPage, 0), 4);
    EXPECT_EQ(SlotsTaken(CurrentPage, 15), 2);
    EXPECT_EQ(Cell(2, PRIM), "002");
    EXPECT_EQ(Cell(2, RFRQ), "136.0000");
}

TEST_F(CheckingAPage, AfterAChangeFromOneP25TargetToTheOtherKeepsTheZones) {
    Retarget(Kdrv716, 0);
    AddMemory(3, "7", "A8");
    testbench::ChangeTarget(Kdrv716B);
    EXPECT_EQ(Cell(3, ZONE), "7");
    EXPECT_EQ(SlotsTaken(CurrentPage, 6), 1);
    EXPECT_EQ(TakenInAll(CurrentPage), 4) << "rows 1, 3 and the guards";
}
