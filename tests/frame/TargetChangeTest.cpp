// Change of the target of a page that holds data.
#include "commands/CommandIds.h"
#include "editing/Shadows.h"
#include "files/ZelkFile_OpenSave.h"
#include "robot/TempFolder.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/Places.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/notebook.h>
#include <wx/statusbr.h>
#include <wx/xml/xml.h>

using namespace testbench;

namespace {

constexpr const char* Question = "Change Target?";
constexpr const char* Warning = "If there is data on this page,\nthis may result in invalid configuration!";

using Texts = std::vector<std::string>;

class ChangingTheTarget : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    /// Expects text in the description and in the cells of a row that have no checked values.
    static void ExpectKept(int row, const std::string& text) {
        for (int col : {MFLG, DESC, SHD0, SHD1, SHD2, SHD3, SHD4, SHD5, SHD6, TFLG})
            EXPECT_EQ(Cell(row, col), text) << "row " << row << ", " << ColumnTag[col];
    }

    /// All cells of the page.
    static std::vector<Texts> AllRows() {
        std::vector<Texts> rows;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            rows.push_back(RowTexts(row));
        return rows;
    }

    static void OpenExample(const std::string& name) {
        ASSERT_TRUE(OpenChannelFile(ExamplesFolder() + "/" + name + ".zelk"));
    }

    /// Number of memories in the file that File > Save writes, without the default row.
    static int MemoriesSaved() {
        const TempFolder folder;
        const std::string path = (folder / "saved.zelk").string();
        {
            DialogScript dialogs;
            dialogs.ExpectFile("Save .zelk file...", path);
            RunCommand(IdSaveAs);
        }
        wxXmlDocument document;
        if (!document.Load(path))
            return -1;
        int memories = -1; // the default row is one
        for (const wxXmlNode* node = document.GetRoot()->GetChildren(); node; node = node->GetNext())
            memories += node->GetName() == "MEMORY";
        return memories;
    }

    static bool IsPainted(int row, int col) {
        return CurrentGrid()->GetCellBackgroundColour(row, col) == FailColour;
    }

    static std::string Status() { return MainFrame->m_statusBar->GetStatusText(0).utf8_string(); }

    static void ExpectTold(const char* verdict, const char* story) {
        EXPECT_EQ(Status(), verdict);
        EXPECT_EQ(MainFrame->m_statusBar->GetToolTipText().utf8_string(), story);
    }

    static bool IsLocked(int row, std::initializer_list<int> cols) {
        for (int col : cols)
            if (!CurrentGrid()->IsReadOnly(row, col))
                return false;
        return true;
    }
};

} // namespace

TEST_F(ChangingTheTarget, AsksFirstAndStopsOnCancel) {
    PageStrings[0].FileName = "kept";
    DialogScript dialogs;
    dialogs.ExpectMessage(Question, Warning, wxID_CANCEL).Style(wxOK | wxCANCEL);
    RunCommand(IdSetTarget);
    EXPECT_EQ(dialogs.Shown().size(), 1u);
    EXPECT_EQ(PageStrings[0].FileName, "kept");
}

TEST_F(ChangingTheTarget, CancelledInTheRadioDialogLeavesThePageUntouched) {
    FillRow(CurrentGrid(), 3, "data");
    FillRow(CurrentGrid(), 121, "guard");
    PageStrings[0].FileName = "kept";
    CurrentParameters().Flags = 0x12;
    const auto before = AllRows();
    DialogScript dialogs;
    dialogs.ExpectMessage(Question, Warning);
    dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->").Answer(wxID_CANCEL);
    RunCommand(IdSetTarget);
    EXPECT_EQ(AllRows(), before);
    EXPECT_EQ(PageStrings[0].FileName, "kept");
    EXPECT_EQ(PageStrings[0].RadioName, "KRV-47");
    EXPECT_EQ(CurrentParameters().Flags, 0x12);
}

TEST_F(ChangingTheTarget, ToAnInvalidChoiceShowsTheErrorAndLeavesThePageUntouched) {
    FillRow(CurrentGrid(), 121, "guard");
    const auto before = AllRows();
    DialogScript dialogs;
    dialogs.ExpectMessage(Question, Warning);
    dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->").Answer(wxID_OK);
    dialogs.ExpectMessage("Error", "Invalid Radio selection").Style(PlainBox);
    RunCommand(IdSetTarget);
    EXPECT_EQ(AllRows(), before);
    EXPECT_EQ(PageStrings[0].RadioName, "KRV-47");
}

TEST_F(ChangingTheTarget, FromKrv47ToKrv305KeepsTheGuards) {
    FillRow(CurrentGrid(), 121, "FIRST");
    SetCell(121, TSQL, "");
    SetCell(121, TTON, "67.0");
    FillRow(CurrentGrid(), 122, "SECOND");
    ChangeTarget(Krv305);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 123);
    ExpectKept(121, "FIRST");
    ExpectKept(122, "SECOND");
    EXPECT_EQ(Cell(121, MNUM), "121");
    EXPECT_EQ(Cell(122, MNUM), "122");
    EXPECT_EQ(Cell(121, TTON), "67.0");
    EXPECT_EQ(Cell(121, RFRQ), "403.0000") << "what doesn't fit is repaired";
    EXPECT_TRUE(IsLocked(121, {MNUM, SCAN, RTON, RCOD}));
    EXPECT_TRUE(IsLocked(122, {MNUM, SCAN, RTON, RCOD}));
}

// Intentional: a number alone would make the blank row a row that is never saved.
TEST_F(ChangingTheTarget, WithOneUsedGuardLeavesTheBlankOneBlank_Departure) {
    FillRow(CurrentGrid(), 122, "SECOND");
    ChangeTarget(Krv305);
    EXPECT_FALSE(RowHasData(121));
    EXPECT_EQ(Cell(122, DESC), "SECOND");
    EXPECT_EQ(Cell(122, MNUM), "122");
}

TEST_F(ChangingTheTarget, WithOneUsedGuardFillsTheBlankOneOfAP25Radio) {
    Retarget(Kdrv716, 0);
    SetCell(231, DESC, "FIRST");
    ClearRowData(232, true);
    ChangeTarget(Kdrv716B);
    EXPECT_EQ(Cell(501, DESC), "FIRST");
    EXPECT_EQ(Cell(502, DESC), "VHF  502") << "a P25 page starts with it";
    EXPECT_EQ(Cell(502, MNUM), "502");
    EXPECT_TRUE(RowIsComplete(501) && RowIsComplete(502));
}

TEST_F(ChangingTheTarget, WithBlankGuardsLeavesThemBlank) {
    ChangeTarget(Krv305);
    EXPECT_FALSE(RowHasData(121));
    EXPECT_FALSE(RowHasData(122));
}

TEST_F(ChangingTheTarget, FromKdrv716ToKdar2000DropsTheGuards) {
    Retarget(Kdrv716, 0);
    FillRow(CurrentGrid(), 231, "31");
    FillRow(CurrentGrid(), 232, "32");
    FillRow(CurrentGrid(), 100, "goes");
    FillRow(CurrentGrid(), 99, "stays");
    ChangeTarget(Kdar2000);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 101);
    ExpectKept(99, "stays");
    EXPECT_EQ(Cell(99, RONL), "stays");
    EXPECT_FALSE(RowHasData(100)) << "the former last row, a cleared guard, is the last one now";
    EXPECT_EQ(GD1, -1);
    EXPECT_EQ(GD2, -1);
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(3), "100 Rows");
}

TEST_F(ChangingTheTarget, MovesGuardsToTheirNewPlace) {
    FillRow(CurrentGrid(), 121, "FIRST");
    FillRow(CurrentGrid(), 122, "SECOND");
    FillRow(CurrentGrid(), 120, "ordinary");
    ChangeTarget(Krv610, 0);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 203);
    EXPECT_EQ(FilledRows(), (std::vector<int>{120, 201, 202}));
    EXPECT_EQ(Cell(201, DESC), "FIRST");
    EXPECT_EQ(Cell(201, MNUM), "201");
    EXPECT_EQ(Cell(202, DESC), "SECOND");
    EXPECT_EQ(Cell(202, MNUM), "202");
    EXPECT_TRUE(IsLocked(201, {MNUM, SCAN, RTON, RCOD}));
    for (int row : {121, 122})
        for (int col : {MNUM, SCAN, RTON, RCOD})
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(row, col)) << row << ", " << col;
}

TEST_F(ChangingTheTarget, OfOneP25GenerationToTheOtherMovesTheGuards) {
    Retarget(Kdrv716, 0);
    SetCell(231, DESC, "FIRST");
    SetCell(232, DESC, "SECOND");
    ChangeTarget(Kdrv716B);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 503);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 501, 502}));
    EXPECT_EQ(Cell(501, DESC), "FIRST");
    EXPECT_EQ(Cell(501, MNUM), "501");
    EXPECT_EQ(Cell(502, DESC), "SECOND");
    EXPECT_EQ(Cell(502, MNUM), "502");
    EXPECT_TRUE(IsLocked(501, {MNUM, SCAN, ZONE}));
    EXPECT_EQ(RadioCatalogue::ZoneList.size(), 32u);
}

TEST_F(ChangingTheTarget, KeepsMemoryRowsAndTheirHiddenCells) {
    FillRow(CurrentGrid(), 1, "ONE");
    SetCell(1, MNUM, "001");
    FillRow(CurrentGrid(), 5, "FIVE");
    SetCell(5, MNUM, "005");
    for (int radio : {Orv12, Kdar2000, Krv47}) {
        ChangeTarget(radio);
        EXPECT_EQ(FilledRows(), (std::vector<int>{1, 5})) << "radio " << radio;
        ExpectKept(1, "ONE");
        ExpectKept(5, "FIVE");
        EXPECT_EQ(Cell(1, MNUM), "001") << "radio " << radio;
        EXPECT_EQ(Cell(5, MNUM), "005") << "radio " << radio;
    }
}

TEST_F(ChangingTheTarget, RepairsWhatDoesNotFitTheNewOne) {
    FillRowsFromDefault({5});
    ChangeTarget(Orv12);
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 7);
    EXPECT_EQ(Cell(5, RFRQ), "118.000");
    EXPECT_EQ(Cell(5, RTON), "");
    EXPECT_EQ(Cell(5, RCOD), "n/a");
    EXPECT_EQ(CurrentGrid()->GetCellBackgroundColour(5, RFRQ), wxColour(235, 125, 50));
}

TEST_F(ChangingTheTarget, WritesTheDefaultRowOfTheNewTarget) {
    SetCell(0, DESC, "MY OWN");
    ChangeTarget(Krv305);
    EXPECT_EQ(Cell(0, BAND), "FM 403-512");
    EXPECT_EQ(Cell(0, DESC), "UHF   403");
    EXPECT_EQ(Cell(0, RFRQ), "403.0000");
    EXPECT_EQ(Cell(0, TFRQ), "512.0000");
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
}

// Intentional: otherwise the first memory would be lost.
TEST_F(ChangingTheTarget, ToAP25RadioFillsOnlyBlankStartingRows_Departure) {
    FillRow(CurrentGrid(), 1, "one");
    FillRow(CurrentGrid(), 2, "two");
    SetCell(2, TFLG, "A0");
    SetCell(2, MNUM, "2");
    ChangeTarget(Kdrv716);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 2, 231, 232}));
    EXPECT_EQ(Cell(1, DESC), "one");
    EXPECT_EQ(Cell(231, MNUM), "231");
    EXPECT_EQ(Cell(232, PRIM), "232");
    EXPECT_EQ(Cell(2, DESC), "two");
    EXPECT_EQ(Cell(2, MFLG), "two");
    EXPECT_EQ(Cell(2, SHD6), "two");
    EXPECT_EQ(Cell(2, ZONE), "1");
    EXPECT_EQ(Cell(2, TFLG), "A8");
}

TEST_F(ChangingTheTarget, ForgetsFileAndFlags) {
    PageStrings[0].FileName = "file";
    PageStrings[0].FileDir = "/there/";
    CurrentParameters().Flags = 0x1A;
    ChangeTarget(Krv305);
    EXPECT_EQ(PageStrings[0].FileName, "");
    EXPECT_EQ(PageStrings[0].FileDir, "");
    EXPECT_EQ(CurrentParameters().Flags, 0);
}

TEST_F(ChangingTheTarget, BringsTabTitleAndStatusUpToDate) {
    ChangeTarget(Krv630, 1);
    EXPECT_EQ(MainFrame->m_notebook->GetPageText(0), "KRV-630");
    EXPECT_EQ(MainFrame->GetTitle(), "Orv Zelk: Page 1 of 1.");
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(1), "KRV-630");
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(2), "FM 138-174");
    EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(3), "202 Rows");
    EXPECT_EQ(GD1, 201);
}

TEST_F(ChangingTheTarget, OfTheSecondOfThreePagesLeavesTheOthers) {
    AddPage(Kdrv716);
    AddPage(Kdar2000);
    MainFrame->m_notebook->SetSelection(1);
    PumpUntilIdle();
    ChangeTarget(Krv305);
    EXPECT_EQ(PageStrings[0].RadioName, "KRV-47");
    EXPECT_EQ(PageStrings[1].RadioName, "KRV-305");
    EXPECT_EQ(PageStrings[2].RadioName, "KDAR-2000");
    EXPECT_EQ(PageGrid[0]->GetNumberRows(), 123);
    EXPECT_EQ(PageGrid[1]->GetNumberRows(), 123);
    EXPECT_EQ(PageGrid[2]->GetNumberRows(), 101);
    EXPECT_EQ(MainFrame->GetTitle(), "Orv Zelk: Page 2 of 3.");
}

TEST_F(ChangingTheTarget, ToTheSameOneKeepsGuardsAndTheirLocks) {
    FillRow(CurrentGrid(), 121, "FIRST");
    SetCell(0, DESC, "MY OWN");
    ChangeTarget(Krv47);
    EXPECT_EQ(Cell(121, DESC), "FIRST");
    EXPECT_EQ(Cell(121, MNUM), "121");
    EXPECT_EQ(Cell(0, DESC), "LOW    66");
    EXPECT_TRUE(IsLocked(121, {MNUM, SCAN, RTON, RCOD}));
    EXPECT_TRUE(IsLocked(122, {MNUM, SCAN, RTON, RCOD}));
}

TEST_F(ChangingTheTarget, WhileACellIsEditedTakesItsTextFirst) {
    CurrentGrid()->GoToCell(3, DESC);
    CurrentGrid()->SetFocus();
    TypeText("HALF");
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    ChangeTarget(Krv305);
    EXPECT_EQ(Cell(3, DESC), "HALF");
    EXPECT_EQ(Cell(3, MNUM), "003") << "filled before the target changed";
    EXPECT_EQ(Cell(3, TFLG), "A0") << "filled before the target changed";
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
}

TEST_F(ChangingTheTarget, ToTheSameP25RadioKeepsTheFirstMemory_Departure) {
    OpenExample("kdrv-716-p25");
    const Texts first = RowTexts(1);
    ChangeTarget(Kdrv716);
    Texts kept = RowTexts(1);
    kept[TFLG] = first[TFLG]; // the check has set the row's zone slot
    EXPECT_EQ(kept, first);
    EXPECT_EQ(MemoriesSaved(), 40);
}

// Intentional: without a squelch value every memory would be incomplete and left out of the file.
TEST_F(ChangingTheTarget, ToTheSecondP25GenerationSavesEveryMemory_Departure) {
    OpenExample("kdrv-716-p25");
    ASSERT_EQ(MemoriesSaved(), 40);
    ChangeTarget(Kdrv716B);
    EXPECT_EQ(MemoriesSaved(), 40);
    EXPECT_EQ(Cell(2, RNSV), "10");
    EXPECT_TRUE(IsPainted(2, RNSV));
    EXPECT_FALSE(IsPainted(2, DESC));
    EXPECT_EQ(FilledRows().size(), 40u);
}

TEST_F(ChangingTheTarget, ToKdar2000SavesEveryMemory_Departure) {
    OpenExample("kdrv-8400-airband");
    const int memories = MemoriesSaved();
    ASSERT_EQ(memories, 6);
    ChangeTarget(Kdar2000);
    EXPECT_EQ(MemoriesSaved(), memories);
    EXPECT_EQ(Cell(1, RONL), "N");
    EXPECT_TRUE(IsPainted(1, RONL));
}

TEST_F(ChangingTheTarget, FillsAnEmptyDescriptionAndScanButNoNumber_Departure) {
    Retarget(Orv12, 0);
    for (int row : {1, 2}) {
        SetCell(row, MNUM, row == 1 ? "001" : "");
        SetCell(row, RFRQ, "121.500");
        SetCell(row, TFLG, "A0");
    }
    ChangeTarget(Kdrv8400, 1);
    for (int row : {1, 2}) {
        EXPECT_EQ(Cell(row, DESC), "VHFAM 118");
        EXPECT_EQ(Cell(row, SCAN), "0");
        EXPECT_TRUE(IsPainted(row, DESC) && IsPainted(row, SCAN));
        EXPECT_EQ(Cell(row, RFRQ), "121.500");
    }
    EXPECT_TRUE(RowIsComplete(1));
    EXPECT_EQ(Cell(2, MNUM), "");
    EXPECT_FALSE(IsPainted(2, MNUM));
}

TEST_F(ChangingTheTarget, FromTheModuleToAP25RadioUnlocksWhatTheModuleLocked_Departure) {
    Retarget(Kdrv4xxx, ModuleSlot);
    FillRowsFromDefault({4, 5});
    SetCell(4, BAND, "AM 225-400");
    SetCell(5, BAND, "AM 108-138");
    SetPageEditors(CurrentPage);
    ASSERT_TRUE(IsLocked(4, {MODE, RCOD, TCOD}));
    ASSERT_TRUE(IsLocked(5, {RTON, RCOD, TTON, TCOD}));
    ChangeTarget(Kdrv716);
    for (int row : {4, 5})
        for (int col : {MODE, RTON, RCOD, TTON, TCOD, RFRQ, TFRQ, SCAN, ZONE})
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
    EXPECT_TRUE(IsLocked(4, {SHAD}));
    EXPECT_TRUE(IsLocked(231, {MNUM, SCAN, ZONE}));
    EXPECT_FALSE(IsLocked(231, {RTON}));
}

TEST_F(ChangingTheTarget, BetweenP25RadiosKeepsTheLocksOfLinkedRows) {
    Retarget(Kdrv716, 0);
    FillRowsFromDefault({2, 3});
    SetCells(2, {{MFLG, "10"}, {SHAD, "P-1"}, {SHD0, "003"}});
    LockLinkedRow(2, PrimaryRow);
    SetCells(3, {{MFLG, "01"}, {SHAD, "S-002"}});
    LockLinkedRow(3, ShadowRow);
    ChangeTarget(Kdrv716B);
    EXPECT_TRUE(IsLocked(2, {MNUM, SHAD, SCAN}));
    EXPECT_TRUE(IsLocked(3, {MNUM, SHAD, SCAN, ZONE, RFRQ, TFRQ}));
}

// Intentional: its number exceeds the smaller page's rows, and without a number it would not be saved.
TEST_F(ChangingTheTarget, ToASmallerGridGivesTheLastRowItsNewNumber_Departure) {
    Retarget(Krv650, 1);
    FillRowsFromDefault({7, 150, 200});
    SetCells(7, {{MNUM, "150"}});
    SetCells(150, {{MNUM, ""}});
    SetCells(200, {{DESC, "LAST"}});
    ChangeTarget(Krv214);
    EXPECT_EQ(FilledRows(), (std::vector<int>{7, 102}));
    ExpectCells(102, {{DESC, "LAST"}, {MNUM, "102"}});
    ExpectCells(7, {{MNUM, "007"}});
    EXPECT_EQ(MemoriesSaved(), 2);
}

TEST_F(ChangingTheTarget, LeavesANumberEmptyWhereTheRowsOwnIsTaken) {
    Retarget(Krv650, 1);
    FillRowsFromDefault({7, 8});
    SetCell(7, MNUM, "150");
    SetCell(8, MNUM, "007");
    ChangeTarget(Krv214);
    EXPECT_EQ(Cell(7, MNUM), "");
    EXPECT_EQ(Cell(8, MNUM), "007");
    EXPECT_EQ(MemoriesSaved(), 1);
}

TEST_F(ChangingTheTarget, OfANumberThatAGuardTakesGivesTheRowItsOwn) {
    Retarget(Kdrv716, 0);
    FillRowsFromDefault({7});
    SetCell(7, MNUM, "201");
    ChangeTarget(Krv610, 0);
    EXPECT_EQ(Cell(201, MNUM), "201");
    EXPECT_EQ(Cell(7, MNUM), "007");
}

TEST_F(ChangingTheTarget, TellsHowManyCellsWereReplacedAndTheFirstRow) {
    FillRowsFromDefault({5, 9});
    ChangeTarget(Krv305);
    ExpectTold("4 cells replaced from row 5",
               "4 cells were replaced: row 5 RxFreq, TxFreq; row 9 RxFreq, TxFreq");
}

TEST_F(ChangingTheTarget, CountsTheCellsThatItFills) {
    OpenExample("kdrv-716-p25");
    ChangeTarget(Kdrv716B);
    // The squelch values of the memories and guards.
    EXPECT_EQ(Status(), "40 cells replaced from row 1");
}

TEST_F(ChangingTheTarget, ThatReplacesNothingTellsNothing) {
    FillRowsFromDefault({5});
    ChangeTarget(Krv47);
    EXPECT_EQ(Status(), "Select function");
}

TEST_F(ChangingTheTarget, TellsOfMemoriesThatFindNoRow) {
    Retarget(Krv650, 1);
    FillRowsFromDefault({7, 150, 151, 200});
    ChangeTarget(Krv214);
    ExpectTold("2 rows LOST, 1 cell replaced, row 102",
               "2 rows found no place in the smaller page; 1 cell was replaced: row 102 Chan");
}

// Intentional: on the default row's band the frequencies would be invalid.
TEST_F(ChangingTheTarget, ToTheModulePutsRowsOnTheBandOfTheirFrequency_Departure) {
    OpenExample("krv-620-milair");
    const wxString frequency = Cell(1, RFRQ);
    ChangeTarget(Kdrv4xxx, ModuleSlot);
    EXPECT_EQ(Cell(1, BAND), "AM 225-400");
    EXPECT_TRUE(IsPainted(1, BAND));
    EXPECT_EQ(Cell(1, RFRQ), frequency);
    EXPECT_EQ(Cell(1, MODE), "n/a");
    EXPECT_FALSE(IsPainted(1, MODE));
    EXPECT_TRUE(IsLocked(1, {MODE, RCOD, TCOD}));
    EXPECT_EQ(MemoriesSaved(), 3);
}
