#include "tests/editing/CommandTest.h"

namespace {

class DefaultRowCommand : public CommandTest {};
class CopyRowCommand : public CommandTest {};
class ClearRowCommand : public CommandTest {};
class InsertRowCommand : public CommandTest {};
class DeleteRowCommand : public CommandTest {};
class MarkRowCommand : public CommandTest {};

} // namespace

TEST_F(DefaultRowCommand, WritesTheDefaultRowIntoTheRow) {
    RunOnRow(DefaultRow, 7);
    Texts expected = RowTexts(0);
    expected[MNUM] = "007";
    expected[DESC] = "LOW   007";
    EXPECT_EQ(RowTexts(7), expected);
    EXPECT_EQ(FilledRows(), std::vector<int>{7});
    EXPECT_FALSE(CurrentGrid()->IsInSelection(7, 0)) << "the selection is cleared";
}

TEST_F(DefaultRowCommand, ReachesEverySelectedRowAndTheContextRow) {
    Fill({3, 4, 5, 6});
    SelectRows({3, 5});
    ContextRow = 122;
    Run(DefaultRow);
    EXPECT_EQ(Column(DESC, {3, 4, 5, 6, 122}),
              (Texts{"LOW   003", "row4", "LOW   005", "row6", "LOW   122"}));
    EXPECT_EQ(Column(MNUM, {3, 5, 122}), (Texts{"003", "005", "122"}));
}

TEST_F(DefaultRowCommand, WithADefaultDescOf123ShowsOnlyTheRowsNumber) {
    SetCell(0, DESC, "123");
    RunOnRow(DefaultRow, 9);
    EXPECT_EQ(Cell(9, DESC), "009");
}

TEST_F(DefaultRowCommand, OnAP25RowGivesItsZoneBackBeforeItTakesOne) {
    Retarget(Kdrv716, 0);
    const int before = SlotsTaken(0);
    ASSERT_EQ(before, 1) << "row 1";
    RunOnRow(DefaultRow, 1);
    EXPECT_EQ(SlotsTaken(0), before);
    EXPECT_EQ(Cell(1, ZONE), "1");
    RunOnRow(DefaultRow, 2);
    EXPECT_EQ(SlotsTaken(0), before + 1);
    EXPECT_EQ(Cell(2, PRIM), "002");
    EXPECT_EQ(Cell(2, TFLG), "A8");
}

TEST_F(DefaultRowCommand, OnAPrimaryEmptiesItsShadows) {
    Retarget(Kdrv716, 0);
    Fill({10, 20});
    Link(10, {11, 12});
    RunOnRow(DefaultRow, 10);
    EXPECT_EQ(RowTexts(11), Blank());
    EXPECT_EQ(RowTexts(12), Blank());
    EXPECT_EQ(Cell(10, MFLG), "0");
    EXPECT_EQ(Cell(10, SHAD), "N");
    EXPECT_EQ(Cell(10, SHD0), "0");
    EXPECT_FALSE(IsReadOnly(10, MNUM));
    EXPECT_FALSE(IsReadOnly(10, SCAN));
    EXPECT_EQ(Cell(20, DESC), "row20");
}

TEST_F(DefaultRowCommand, OnAShadowTakesItOutOfItsPrimarysList) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11, 12});
    RunOnRow(DefaultRow, 12);
    EXPECT_EQ(Column(SHD0, {10}), Texts{"011"});
    EXPECT_EQ(Column(SHD1, {10}), Texts{"0"});
    EXPECT_EQ(Cell(12, MFLG), "0");
    EXPECT_EQ(Cell(12, SHAD), "N");
    EXPECT_EQ(Cell(12, ZONE), "1");
    EXPECT_FALSE(IsReadOnly(12, RFRQ));
}

TEST_F(DefaultRowCommand, OverwritesOtherSelectedRowsAsTheyAre) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11});
    SelectRows({10});
    ContextRow = 30;
    Run(DefaultRow);
    EXPECT_EQ(Cell(10, MFLG), "0");
    EXPECT_EQ(Cell(11, SHAD), "S-010") << "only the context row's links are undone";
}

TEST_F(DefaultRowCommand, LeavesWhatTheRadioFixesInGuardRowsLocked) {
    const struct {
        int radio;
        std::vector<int> locked;
    } pages[] = {{Krv47, {MNUM, SCAN, RTON, RCOD}}, {Kdrv716, {MNUM, SHAD, SCAN, ZONE}}};
    for (const auto& page : pages) {
        Retarget(page.radio, 0);
        RunOnRow(DefaultRow, GD1);
        EXPECT_EQ(Cell(GD1, MNUM), wxString::Format("%d", GD1));
        EXPECT_EQ(Locked(GD1), page.locked) << "radio " << page.radio;
    }
}

TEST_F(DefaultRowCommand, NeverTouchesTheDefaultRow) {
    Retarget(Kdrv716, 0);
    const Texts before = RowTexts(0);
    CurrentGrid()->ClearSelection();
    ContextRow = 0;
    Run(DefaultRow);
    EXPECT_EQ(RowTexts(0), before);
}

TEST_F(DefaultRowCommand, FromTheMenuWorksOnTheRowThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DefaultRow);
    ClickRowCommand(4, DefaultRow);
    EXPECT_EQ(FilledRows(), std::vector<int>{4});
}

TEST_F(CopyRowCommand, KeepsAll32CellsAndSelectsTheRowAlone) {
    Fill({3, 4});
    SetCell(4, TFLG, "C1");
    SelectRows({2, 3, 4});
    ContextRow = 4;
    Run(CopyRow);
    ASSERT_EQ(RowCopyBuffer.size(), 32u);
    for (int col = 0; col < 32; ++col)
        EXPECT_EQ(RowCopyBuffer[static_cast<size_t>(col)], Cell(4, col));
    EXPECT_TRUE(CurrentGrid()->IsInSelection(4, 0));
    EXPECT_FALSE(CurrentGrid()->IsInSelection(3, 0));
}

TEST_F(CopyRowCommand, RefusesABlankRowAndForgetsTheFormerCopy) {
    Fill({4});
    RunOnRow(CopyRow, 4);
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Error - Empty Row!", "Cannot copy empty row.").Style(testbench::PlainBox);
    ContextRow = 5;
    MainFrame->m_contextMenu->SendEvent(CopyRow);
    EXPECT_TRUE(RowCopyBuffer.empty());
}

TEST_F(DefaultRowCommand, WithAContextRowOfALongerPageWorksOnTheSelection) {
    SelectRows({3});
    ContextRow = 400;
    Run(DefaultRow);
    EXPECT_EQ(FilledRows(), std::vector<int>{3});
}

TEST_F(CopyRowCommand, TakesTheLinksOutOfACopiedPrimaryOrShadowButNotTheirFlags) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11, 12});
    SetCell(10, MFLG, "78");
    SetCell(12, MFLG, "6A");
    RunOnRow(CopyRow, 10);
    EXPECT_EQ(RowCopyBuffer[SHAD], "N");
    EXPECT_EQ(RowCopyBuffer[PRIM], "010");
    for (size_t col = SHD0; col <= SHD6; ++col)
        EXPECT_EQ(RowCopyBuffer[col], "0") << col;
    EXPECT_EQ(RowCopyBuffer[MFLG], "70");
    EXPECT_EQ(Cell(10, SHD1), "012") << "the row itself stays";
    RunOnRow(CopyRow, 12);
    EXPECT_EQ(RowCopyBuffer[SHAD], "N");
    EXPECT_EQ(RowCopyBuffer[PRIM], "012");
    EXPECT_EQ(RowCopyBuffer[MFLG], "62");
}

TEST_F(CopyRowCommand, LeavesACopyWithoutLinksAsItIs) {
    Retarget(Kdrv716, 0);
    SetCell(1, MFLG, "8");
    SetCell(1, SHAD, "P-1");
    RunOnRow(CopyRow, 1);
    EXPECT_EQ(RowCopyBuffer[MFLG], "8");
    EXPECT_EQ(RowCopyBuffer[SHAD], "P-1");
    Retarget(Krv47, 0);
    Fill({2});
    SetCell(2, MFLG, "17");
    SetCell(2, SHD0, "5");
    RunOnRow(CopyRow, 2);
    EXPECT_EQ(RowCopyBuffer[MFLG], "17") << "an analog row has no links";
    EXPECT_EQ(RowCopyBuffer[SHD0], "5");
}

TEST_F(CopyRowCommand, FromTheMenuCopiesTheRowThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({3});
    ClickRowCommand(3, CopyRow);
    ASSERT_EQ(RowCopyBuffer.size(), 32u);
    EXPECT_EQ(RowCopyBuffer[DESC], "row3");
}

TEST_F(ClearRowCommand, EmptiesTheSelectedRows) {
    Fill({2, 3, 4, 5, 121, 122});
    SelectRows({0, 3, 5, 122});
    Run(ClearRow);
    EXPECT_EQ(FilledRows(), (std::vector<int>{2, 4, 121}));
    EXPECT_NE(RowTexts(0), Blank());
    EXPECT_FALSE(CurrentGrid()->IsInSelection(3, 0));
}

TEST_F(ClearRowCommand, TakesARowAsSelectedWhenItsFirstCellIs) {
    Fill({2, 3, 4, 5});
    CurrentGrid()->SelectBlock(2, 1, 3, 31);
    CurrentGrid()->SelectBlock(4, 0, 5, 0, true);
    Run(ClearRow);
    EXPECT_EQ(FilledRows(), (std::vector<int>{2, 3}));
}

TEST_F(ClearRowCommand, GivesTheZonesOfP25RowsBack) {
    Retarget(Kdrv716, 0);
    Fill({2, 3, 4});
    EXPECT_EQ(SlotsTaken(0), 4);
    SelectRows({2, 4});
    Run(ClearRow);
    EXPECT_EQ(SlotsTaken(0), 2);
    EXPECT_EQ(RowTexts(4), Blank());
}

TEST_F(ClearRowCommand, OnAPrimaryEmptiesItsShadowsToo) {
    Retarget(Kdrv716, 0);
    Fill({10, 14});
    Link(10, {11, 12});
    RunOnRow(ClearRow, 10);
    for (int row : {10, 11, 12})
        EXPECT_EQ(RowTexts(row), Blank()) << row;
    EXPECT_EQ(Cell(14, DESC), "row14");
    EXPECT_FALSE(IsReadOnly(12, RFRQ));
    EXPECT_TRUE(IsReadOnly(12, SHAD));
}

TEST_F(ClearRowCommand, OnAShadowFreesItsSlotAndKeepsThePrimary) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11, 12});
    RunOnRow(ClearRow, 11);
    EXPECT_EQ(RowTexts(11), Blank());
    EXPECT_EQ(Column(SHD0, {10}), Texts{"0"});
    EXPECT_EQ(Column(SHD1, {10}), Texts{"012"});
    EXPECT_EQ(Cell(10, SHAD), "P-2");
    EXPECT_EQ(Cell(10, MFLG), "10");
    EXPECT_TRUE(IsReadOnly(10, MNUM));
}

TEST_F(ClearRowCommand, LeavesWhatTheRadioFixesInGuardRowsLocked) {
    const struct {
        int radio;
        std::vector<int> locked;
    } pages[] = {{Krv47, {MNUM, SCAN, RTON, RCOD}},
                 {Kdrv716, {MNUM, SHAD, SCAN, ZONE}},
                 {Kdrv716B, {MNUM, SHAD, SCAN, ZONE}}};
    for (const auto& page : pages) {
        SCOPED_TRACE(page.radio);
        Retarget(page.radio, 0);
        Fill({5, GD1, GD2});
        CurrentGrid()->SetReadOnly(5, DESC, true);
        SelectRows({5, GD2});
        Run(ClearRow);
        EXPECT_EQ(RowTexts(GD2), Blank());
        EXPECT_EQ(Locked(GD2), page.locked);
        EXPECT_EQ(Locked(GD1), page.locked);
        EXPECT_FALSE(IsReadOnly(5, DESC));
    }
}

TEST_F(ClearRowCommand, OnAnalogPagesKnowsNoLinks) {
    Fill({5, 6});
    SetCell(5, MFLG, "10");
    SetCell(5, SHD0, "006");
    SetCell(6, MFLG, "01");
    RunOnRow(ClearRow, 5);
    EXPECT_EQ(FilledRows(), std::vector<int>{6});
}

TEST_F(ClearRowCommand, FromTheMenuClearsTheRowThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({3, 4});
    CurrentGrid()->ClearSelection();
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, ClearRow);
    ClickRowCommand(3, ClearRow);
    EXPECT_EQ(FilledRows(), std::vector<int>{4});
}

TEST_F(InsertRowCommand, MovesTheRowsDownAndNumbersThem) {
    Retarget(Kdar2000, 0);
    Fill({1, 2, 3, 5, 99});
    SetCell(2, SHAD, "kept");
    SetCell(3, PRIM, "kept");
    RunOnRow(InsertRow, 2);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 3, 4, 6, 100}));
    EXPECT_EQ(Column(DESC, {1, 3, 4, 6, 100}), (Texts{"row1", "row2", "row3", "row5", "row99"}));
    EXPECT_EQ(Column(MNUM, {1, 3, 4, 6, 100}), (Texts{"001", "3", "4", "6", "100"})) << "no leading zeros";
    EXPECT_EQ(Cell(3, SHAD), "kept");
    EXPECT_EQ(Cell(4, PRIM), "kept");
    EXPECT_EQ(CurrentGrid()->GetNumberRows(), 101);
    EXPECT_EQ(CurrentGrid()->GetRowLabelValue(3), "003");
}

TEST_F(InsertRowCommand, OnAFullPageLosesTheLastMemoryAndKeepsItsZoneSlot) {
    Retarget(Kdrv716, 0);
    CurrentGrid()->ClearGrid();
    SetPageDefaults(MainFrame, 0);
    ClearZoneSlots(0);
    CurrentGrid()->SelectAll();
    CopyValuesToSelection(0, GetRowValues(0, 0), true, true);
    const auto slots = ZoneSlots;
    SetCell(229, DESC, "new last");
    SetCell(230, DESC, "lost");
    RunOnRow(InsertRow, 5);
    EXPECT_EQ(RowTexts(5), Blank());
    EXPECT_EQ(Cell(230, DESC), "new last");
    EXPECT_EQ(Cell(230, MNUM), "230");
    EXPECT_EQ(Cell(230, PRIM), "229") << "links hold the former numbers";
    EXPECT_EQ(ZoneSlots, slots);
}

TEST_F(InsertRowCommand, OnAPageWithGuardsLeavesThemInPlace) {
    for (int radio : {Krv47, Kdrv716, Kdrv716B}) {
        SCOPED_TRACE(radio);
        Retarget(radio, 0);
        Fill({GD1, GD2, GD1 - 1, GD1 - 2});
        const Texts first = RowTexts(GD1), second = RowTexts(GD2);
        RunOnRow(InsertRow, 1);
        EXPECT_EQ(RowTexts(1), Blank());
        EXPECT_EQ(RowTexts(GD1), first);
        EXPECT_EQ(RowTexts(GD2), second);
        EXPECT_EQ(Cell(GD1 - 1, DESC), wxString::Format("row%d", GD1 - 2));
        EXPECT_TRUE(IsReadOnly(GD1, MNUM));
        EXPECT_TRUE(IsReadOnly(GD2, SCAN));
        EXPECT_FALSE(IsReadOnly(GD1 - 1, MNUM));
        EXPECT_EQ(CurrentGrid()->GetNumberRows(), CurrentParameters().Rows + 1);
    }
}

TEST_F(InsertRowCommand, DropsWhatElseIsSelected) {
    SelectRows({2, 8});
    ContextRow = 5;
    Run(InsertRow);
    for (int row : {2, 3, 8, 9})
        EXPECT_FALSE(CurrentGrid()->IsInSelection(row, 0)) << "row " << row;
}

TEST_F(InsertRowCommand, KeepsTheNumbersOfLinks) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {12, 13});
    RunOnRow(InsertRow, 11);
    EXPECT_EQ(Column(MNUM, {10, 13, 14}), (Texts{"010", "13", "14"}));
    EXPECT_EQ(Column(SHD0, {10}), Texts{"012"});
    EXPECT_EQ(Column(PRIM, {13, 14}), (Texts{"010", "010"}));
    EXPECT_EQ(Locked(13), (std::vector<int>{MNUM, SHAD, SCAN, ZONE, RFRQ, TFRQ})) << "locks move along";
    EXPECT_EQ(Locked(12), std::vector<int>{SHAD});
}

TEST_F(InsertRowCommand, AtTheLastRowEmptiesIt) {
    Retarget(Kdar2000, 0);
    Fill({99, 100});
    RunOnRow(InsertRow, 100);
    EXPECT_EQ(FilledRows(), std::vector<int>{99});
    Retarget(Krv47, 0);
    Fill({119, 120, 121});
    RunOnRow(InsertRow, 120);
    EXPECT_EQ(FilledRows(), (std::vector<int>{119, 121}));
}

TEST_F(InsertRowCommand, MovesPaintWithItsRow) {
    Fill({3});
    CurrentGrid()->SetCellBackgroundColour(3, RFRQ, Orange());
    RunOnRow(InsertRow, 3);
    EXPECT_EQ(Paint(4, RFRQ), Orange());
    EXPECT_EQ(Paint(3, RFRQ), Plain());
}

TEST_F(InsertRowCommand, IsNotCarriedOutAboveTheDefaultRowOrAtAGuardRow) {
    Fill({1, 120, 121});
    const Texts defaults = RowTexts(0);
    for (int row : {0, 121, 122}) {
        ContextRow = row;
        MainFrame->m_contextMenu->SendEvent(InsertRow);
    }
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 120, 121}));
    EXPECT_EQ(RowTexts(0), defaults);
}

TEST_F(InsertRowCommand, FromTheMenuInsertsAboveTheRowThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({3, 4});
    CurrentGrid()->ClearSelection();
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, InsertRow);
    ClickRowCommand(4, InsertRow);
    EXPECT_EQ(Column(DESC, {3, 4, 5}), (Texts{"row3", "", "row4"}));
}

TEST_F(DeleteRowCommand, MovesTheRowsBelowUpWithTheirNumbers) {
    Retarget(Kdar2000, 0);
    Fill({1, 2, 3, 4, 5, 6, 7, 99, 100});
    SelectRows({2, 4, 5, 100});
    Run(DeleteRow);
    EXPECT_EQ(Column(DESC, {1, 2, 3, 4, 5, 96, 97}),
              (Texts{"row1", "row3", "row6", "row7", "", "row99", ""}));
    EXPECT_EQ(Column(MNUM, {2, 3, 4, 96}), (Texts{"003", "006", "007", "099"})) << "no row is renumbered";
    EXPECT_EQ(CurrentGrid()->GetNumberRows(), 101);
    EXPECT_FALSE(CurrentGrid()->IsInSelection(2, 0));
    EXPECT_EQ(CurrentGrid()->GetRowLabelValue(100), "100");
}

TEST_F(DeleteRowCommand, WithOnlyRow1SelectedLeavesItInPlace) {
    for (int radio : {Krv47, Kdrv716, Kdar2000}) {
        Retarget(radio, 0);
        Fill({1, 2});
        const Texts first = RowTexts(1), second = RowTexts(2);
        RunOnRow(DeleteRow, 1);
        EXPECT_EQ(RowTexts(1), first);
        EXPECT_EQ(RowTexts(2), second);
    }
}

TEST_F(DeleteRowCommand, OfTheWholePageLeavesRow1AndTheGuards) {
    Fill({1, 2, 3, 120, 121, 122});
    const Texts first = RowTexts(121), second = RowTexts(122);
    CurrentGrid()->SelectAll();
    Run(DeleteRow);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 121, 122}));
    EXPECT_EQ(RowTexts(121), first);
    EXPECT_EQ(RowTexts(122), second);
    EXPECT_NE(RowTexts(0), Blank());
}

TEST_F(DeleteRowCommand, OnAPageWithGuardsLeavesThemInPlace) {
    for (int radio : {Krv47, Kdrv716, Kdrv716B}) {
        SCOPED_TRACE(radio);
        Retarget(radio, 0);
        Fill({GD1, GD2, GD1 - 1, 5});
        const Texts first = RowTexts(GD1), second = RowTexts(GD2);
        SelectRows({5, GD1});
        Run(DeleteRow);
        EXPECT_EQ(RowTexts(GD1), first);
        EXPECT_EQ(RowTexts(GD2), second);
        EXPECT_EQ(Cell(GD1 - 2, DESC), wxString::Format("row%d", GD1 - 1));
        EXPECT_EQ(RowTexts(GD1 - 1), Blank());
        EXPECT_TRUE(IsReadOnly(GD1, MNUM));
        EXPECT_FALSE(IsReadOnly(GD1 - 1, MNUM));
    }
}

TEST_F(DeleteRowCommand, OnAPrimaryEmptiesItsShadowsRowsButKeepsThemInThePage) {
    Retarget(Kdrv716, 0);
    Fill({10, 15});
    Link(10, {12, 13});
    RunOnRow(DeleteRow, 10);
    EXPECT_EQ(RowTexts(11), Blank());
    EXPECT_EQ(RowTexts(12), Blank());
    EXPECT_EQ(Column(DESC, {14}), Texts{"row15"}) << "one row has gone, not three";
}

TEST_F(DeleteRowCommand, OnAShadowFreesItsSlot) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {12, 13});
    RunOnRow(DeleteRow, 12);
    EXPECT_EQ(Column(SHD0, {10}), Texts{"0"});
    EXPECT_EQ(Column(SHD1, {10}), Texts{"013"});
    EXPECT_EQ(Cell(12, DESC), "row13");
    EXPECT_TRUE(IsReadOnly(12, RFRQ)) << "locks move with their row";
    EXPECT_FALSE(IsReadOnly(13, RFRQ));
}

TEST_F(DeleteRowCommand, OfAPrimaryWithItsShadowsLeavesNothingOfThem) {
    Retarget(Kdrv716, 0);
    Fill({2, 10, 15});
    Link(10, {11, 12});
    SelectRows({10, 11, 12});
    Run(DeleteRow);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 2, 12, 231, 232}));
    EXPECT_EQ(Cell(12, DESC), "row15");
}

TEST_F(DeleteRowCommand, GivesTheZonesOfTheDeletedRowsBack) {
    Retarget(Kdrv716, 0);
    Fill({2, 3, 4});
    SelectRows({2, 4});
    Run(DeleteRow);
    EXPECT_EQ(SlotsTaken(0), 2);
}

TEST_F(DeleteRowCommand, GivesBackTheZoneOfTheRowThatTheNumberNames) {
    Retarget(Kdrv716, 0);
    for (int row : {5, 6, 7, 8})
        SetCell(row, MNUM, wxString::Format("%d", row + 1));
    SetCell(6, ZONE, "2");
    SetCell(7, ZONE, "3");
    SetCell(8, ZONE, "4");
    for (int zone = 0; zone < 16; ++zone)
        ZoneSlots[zone] = 9;
    SelectRows({5, 6});
    Run(DeleteRow);
    // Row 6 names row 7. After its deletion the former row 7 is row 6, which row 5 names.
    EXPECT_EQ(SlotsTaken(2), 7);
    EXPECT_EQ(SlotsTaken(1), 9);
    EXPECT_EQ(SlotsTaken(3), 9);
}

TEST_F(DeleteRowCommand, MovesPaintWithItsRow) {
    Fill({3, 5});
    CurrentGrid()->SetCellBackgroundColour(5, RFRQ, Orange());
    CurrentGrid()->SetCellBackgroundColour(3, RFRQ, Teal());
    RunOnRow(DeleteRow, 3);
    EXPECT_EQ(Paint(4, RFRQ), Orange());
    EXPECT_EQ(Paint(3, RFRQ), Plain());
    EXPECT_EQ(Paint(5, RFRQ), Plain());
}

TEST_F(DeleteRowCommand, OfEverySecondRowClosesTheGapsOfAFullPage) {
    Retarget(Kdrv716B, 0);
    CurrentGrid()->SelectAll();
    CopyValuesToSelection(0, GetRowValues(0, 0), true, true);
    for (int row = 2; row <= 500; row += 2)
        CurrentGrid()->SelectRow(row, true);
    Run(DeleteRow);
    EXPECT_EQ(Column(MNUM, {1, 2, 250, 251}), (Texts{"001", "003", "499", ""}));
}

TEST_F(DeleteRowCommand, FromTheMenuDeletesTheRowThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({3, 4});
    CurrentGrid()->ClearSelection();
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DeleteRow);
    ClickRowCommand(3, DeleteRow);
    EXPECT_EQ(Column(DESC, {3, 4}), (Texts{"row4", ""}));
}

TEST_F(MarkRowCommand, PaintsAllCellsOfTheSelectedRows) {
    Fill({2, 4});
    CurrentParameters().Flags = 0x02;
    SelectRows({0, 2, 3, 122});
    Run(MarkRow);
    for (int row : {0, 1, 2, 3, 4, 121, 122})
        for (int col = 0; col < 32; ++col)
            EXPECT_EQ(Paint(row, col), row == 2 || row == 3 || row == 122 ? Teal() : Plain())
                << "row " << row << " column " << col;
    EXPECT_EQ(CurrentParameters().Flags, 0x12);
    EXPECT_FALSE(CurrentGrid()->IsInSelection(2, 0));
    EXPECT_EQ(Cell(2, DESC), "row2");
}

TEST_F(MarkRowCommand, FromTheMenuMarksTheRowThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({3});
    CurrentGrid()->ClearSelection();
    ClickRowCommand(3, MarkRow);
    EXPECT_EQ(Paint(3, DESC), Teal());
    EXPECT_EQ(Paint(2, DESC), Plain());
}
