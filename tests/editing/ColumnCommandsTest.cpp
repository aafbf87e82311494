#include "editing/ColumnCommands.h"

#include "editing/CellMarks.h"
#include "editing/CellTextRenderer.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/CommandTest.h"

namespace {

class DefaultColumn : public CommandTest {
protected:
    /// The cells of a row that change when the command runs on this column; the default row holds
    /// "new" there.
    static std::string Changed(int col) {
        for (int c = 0; c < 32; ++c)
            SetCell(5, c, "old");
        SetCell(0, col, "new");
        RunOnColumn(DefaultCol, col);
        std::string changed;
        for (int c = 0; c < 32; ++c)
            if (Cell(5, c) != "old")
                changed += wxString::Format("%d=%s ", c, Cell(5, c)).utf8_string();
        return changed;
    }
};

class DefaultMarkedRows : public CommandTest {};
class Renumbering : public CommandTest {
protected:
    static std::string Shown(int row) {
        const wxGridCellRendererPtr renderer(CurrentGrid()->GetCellRenderer(row, MNUM));
        const auto* number = dynamic_cast<const CellTextRenderer*>(renderer.get());
        return number ? number->TextOf(*CurrentGrid(), row, MNUM).utf8_string() : "no number";
    }
};
class DefaultFileCommand : public CommandTest {};
class CellMarks : public CommandTest {};
class DefaultsCommands : public CommandTest {};
class ClearHighlight : public CommandTest {};
class MissingClipboard : public CommandTest {};

} // namespace

TEST_F(DefaultColumn, WritesTheDefaultIntoRowsWithDataOnly) {
    Fill({2, 3, 122});
    SetCell(0, DESC, "NEW");
    RunOnColumn(DefaultCol, DESC);
    EXPECT_EQ(Column(DESC, {1, 2, 3, 4, 122}), (Texts{"", "NEW", "NEW", "", "NEW"}));
    EXPECT_EQ(FilledRows(), (std::vector<int>{2, 3, 122}));
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, DESC));
}

TEST_F(DefaultColumn, TakesLinkedCellsAlong) {
    struct Line {
        int radio, col;
        const char* changed;
    };
    const Line lines[] = {
        {Krv47, 5, "5=new "},
        {Krv47, 7, "7=new "},
        {Krv47, 8, "8=new "},
        {Krv47, 9, "9=new 16=new "},
        {Krv47, 12, "12=new 13=OFF 18=new 19=OFF "},
        {Krv47, 13, "12=OFF 13=new 18=OFF 19=new "},
        {Krv47, 14, "14=new 20=new "},
        {Krv47, 15, "15=new 21=new "},
        {Krv47, 16, "16=new "},
        {Krv47, 18, "18=new 19=OFF "},
        {Krv47, 19, "18=OFF 19=new "},
        {Kdar2000, 9, "9=new 16=new "},
        {Kdar2000, 12, "12=new 13=OFF 18=new 19=OFF "},
        {Krv620, 12, "12=new 13=OFF 18=new 19=OFF "},
        {Kdrv4xxx, 13, "12=OFF 13=new 18=OFF 19=new "},
        {Kdrv716, 3, "3=new "},
        {Kdrv716, 5, "5=new "},
        {Kdrv716, 9, "9=new 16=new "},
        {Kdrv716, 10, "10=new "},
        {Kdrv716, 11, "11=new "},
        {Kdrv716, 12, "12=new 18=new "},
        {Kdrv716, 13, "13=new 19=new "},
        {Kdrv716, 14, "14=new 20=new "},
        {Kdrv716, 15, "15=new 21=new "},
        {Kdrv716, 16, "16=new "},
        {Kdrv716, 17, "17=new "},
        {Kdrv716, 18, "18=new "},
        {Kdrv716, 19, "19=new "},
        {Kdrv716, 20, "20=new "},
        {Kdrv716, 21, "21=new "},
        {Kdrv716, 22, "22=new "},
    };
    for (const Line& line : lines) {
        if (CurrentParameters().Radio != line.radio)
            Retarget(line.radio, 0);
        EXPECT_EQ(Changed(line.col), line.changed) << "radio " << line.radio << " column " << line.col;
    }
}

TEST_F(DefaultColumn, OfTheModuleSwitchesToneAndCodeOffToo) {
    Retarget(Kdrv4xxx, ModuleSlot);
    EXPECT_EQ(CurrentParameters().Type, 3) << "the module";
    EXPECT_EQ(Changed(12), "12=new 13=OFF 18=new 19=OFF ");
    EXPECT_EQ(Changed(19), "18=OFF 19=new ");
}

TEST_F(DefaultColumn, OfTheModulesBandEmptiesTheFrequenciesOfRowsThatWereOnAnother) {
    Retarget(Kdrv4xxx, ModuleSlot);
    Fill({2, 3, 4});
    SetCells(3, {{BAND, "AM 225-400"}, {RFRQ, "230.0000"}});
    SetCells(0, {{BAND, "FM 30-50"}});
    SetPageEditors(CurrentPage);
    ASSERT_TRUE(IsReadOnly(3, MODE));
    SetCell(3, RTON, "67.0");
    const Texts same = RowTexts(2);
    RunOnColumn(DefaultCol, BAND);
    EXPECT_EQ(RowTexts(2), same) << "the band stays";
    EXPECT_EQ(Column(BAND, {1, 2, 3, 4}), (Texts{"", "FM 30-50", "FM 30-50", "FM 30-50"}));
    EXPECT_EQ(Column(RFRQ, {2, 3}), (Texts{"31.0000", ""}));
    EXPECT_EQ(Column(TFRQ, {2, 3}), (Texts{"31.0000", ""}));
    EXPECT_FALSE(IsReadOnly(3, MODE));
    EXPECT_FALSE(IsReadOnly(3, RCOD));
    EXPECT_TRUE(IsReadOnly(3, TCOD)) << "it stays as the former band left it";
    // The new band's rules apply to a typed frequency.
    testbench::ShowAndFocus(*MainFrame);
    testbench::TypeIntoCell(*CurrentGrid(), 3, RFRQ, "240.0");
    EXPECT_NE(Cell(3, RFRQ).Left(3), "240");
    testbench::TypeIntoCell(*CurrentGrid(), 3, RFRQ, "40.0");
    EXPECT_EQ(Cell(3, RFRQ), "40.0000");
}

TEST_F(DefaultColumn, OfTheModulesBandLocksTheCellsThatAnAmBandLacks) {
    Retarget(Kdrv4xxx, ModuleSlot);
    Fill({2});
    SetCell(0, BAND, "AM 225-400");
    RunOnColumn(DefaultCol, BAND);
    EXPECT_EQ(Cell(2, BAND), "AM 225-400");
    EXPECT_EQ(Column(MODE, {2}), Texts{"n/a"});
    EXPECT_EQ(Column(RCOD, {2}), Texts{"n/a"});
    EXPECT_EQ(Column(TCOD, {2}), Texts{"n/a"});
    EXPECT_EQ(Column(RTON, {2}), Texts{"OFF"});
    for (int col : {MODE, RCOD, TCOD})
        EXPECT_TRUE(IsReadOnly(2, col)) << col;
}

TEST_F(DefaultColumn, IsTheFirstOneSelectedInRow1) {
    Fill({5});
    for (int col = 0; col < 23; ++col)
        SetCell(0, col, "new");
    CurrentGrid()->SelectBlock(1, DESC, 1, RFRQ);
    Run(DefaultCol);
    EXPECT_EQ(Cell(5, DESC), "new");
    EXPECT_NE(Cell(5, RFRQ), "new");
    // No cell of row 1 is selected: the command takes the last possible column.
    CurrentGrid()->SelectRow(2);
    Run(DefaultCol);
    EXPECT_EQ(Cell(5, TIDC), "new");
    EXPECT_NE(Cell(5, MODE), "new");
    EXPECT_NE(Cell(5, TNAC), "new");
}

TEST_F(DefaultColumn, OfTheZoneDealsSixteenRowsAZone) {
    Retarget(Kdrv716, 0);
    CurrentGrid()->ClearGrid();
    SetPageDefaults(MainFrame, 0);
    for (int row : {1, 231, 232})
        ClearRowData(row, false);
    CurrentGrid()->SelectBlock(1, 0, 40, 31);
    CopyValuesToSelection(0, GetRowValues(0, 0), true, true);
    for (int row = 1; row <= 40; ++row)
        SetCell(row, ZONE, "9");
    SetCell(0, ZONE, "7");
    RunOnColumn(DefaultCol, ZONE);
    EXPECT_EQ(Column(ZONE, {1, 16, 17, 32, 33, 40, 41}), (Texts{"1", "1", "2", "2", "3", "3", ""}));
    EXPECT_EQ(SlotsTaken(0), 16);
    EXPECT_EQ(SlotsTaken(1), 16);
    EXPECT_EQ(SlotsTaken(2), 8);
    EXPECT_EQ(SlotsTaken(3), 0);
    EXPECT_EQ(Cell(40, TFLG), "A8");
}

TEST_F(DefaultColumn, OfTheZoneGivesAShadowNone) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11});
    RunOnColumn(DefaultCol, ZONE);
    EXPECT_EQ(Cell(11, ZONE), "");
    EXPECT_EQ(SlotsTaken(0), 2) << "rows 1 and 10";
}

TEST_F(DefaultColumn, OfTheZoneMakesScanOfARowThatWasInXWritable) {
    Retarget(Kdrv716B, 0);
    Fill({10, 11});
    Link(11, {12});
    SetCell(10, ZONE, "X");
    SetPageEditors(0);
    ASSERT_TRUE(IsReadOnly(10, SCAN));
    RunOnColumn(DefaultCol, ZONE);
    EXPECT_EQ(Cell(10, ZONE), "1");
    EXPECT_FALSE(IsReadOnly(10, SCAN));
    for (int row : {11, 12, 501, 502})
        EXPECT_TRUE(IsReadOnly(row, SCAN)) << row;
}

TEST_F(DefaultColumn, FromTheMenuIsTheColumnThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({2});
    SetCell(0, DESC, "NEW");
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DefaultCol);
    ClickColumnCommand(DESC, DefaultCol);
    EXPECT_EQ(Cell(2, DESC), "NEW");
}

TEST_F(DefaultMarkedRows, GetTheDefaultAndKeepTheirMarks) {
    Fill({2, 3, 4});
    SelectRows({3, 5});
    Run(MarkRow);
    SetCell(0, RFRQ, "70.0000");
    RunOnColumn(DefaultMarked, RFRQ);
    EXPECT_EQ(Column(RFRQ, {2, 3, 4, 5}), (Texts{"66.0000", "70.0000", "66.0000", "70.0000"}));
    EXPECT_EQ(Column(TFRQ, {2, 3, 4, 5}), (Texts{"88.0000", "70.0000", "88.0000", "70.0000"}));
    EXPECT_EQ(Paint(3, MNUM), Teal());
    EXPECT_EQ(CurrentParameters().Flags & 0x10, 0x10);
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, RFRQ));
}

TEST_F(DefaultMarkedRows, AreThoseWhoseNumberIsPainted) {
    Fill({2, 3});
    CurrentGrid()->SetCellBackgroundColour(2, DESC, Teal());
    CurrentGrid()->SetCellBackgroundColour(3, MNUM, Orange());
    SetCell(0, DESC, "NEW");
    RunOnColumn(DefaultMarked, DESC);
    EXPECT_EQ(Column(DESC, {2, 3}), (Texts{"row2", "row3"}));
}

TEST_F(DefaultMarkedRows, WithoutAMarkChangeNothingButTheZoneCounters) {
    Retarget(Kdrv716, 0);
    Fill({2, 3});
    const Texts second = RowTexts(2), guard = RowTexts(231);
    SetCell(0, DESC, "NEW");
    const auto slots = ZoneSlots;
    RunOnColumn(DefaultMarked, DESC);
    EXPECT_EQ(ZoneSlots, slots);
    EXPECT_EQ(RowTexts(2), second);
    RunOnColumn(DefaultMarked, ZONE);
    EXPECT_EQ(RowTexts(2), second);
    EXPECT_EQ(RowTexts(231), guard);
    for (int zone = 0; zone < 33; ++zone)
        EXPECT_EQ(SlotsTaken(zone), 0) << zone;
}

TEST_F(DefaultMarkedRows, AreDealtAZoneFromEmptyCounters) {
    Retarget(Kdrv716, 0);
    Fill({2, 3});
    SelectRows({3});
    Run(MarkRow);
    RunOnColumn(DefaultMarked, ZONE);
    EXPECT_EQ(SlotsTaken(0), 1);
}

TEST_F(DefaultColumn, OfTheZoneAlsoEmptiesTheFirstZoneOfTheNextPage) {
    Retarget(Kdrv716, 0);
    const auto fillNextPage = [] { ZoneSlots[32] = ZoneSlots[33] = 5; };
    for (int command : {DefaultCol, DefaultMarked}) {
        fillNextPage();
        RunOnColumn(command, ZONE);
        EXPECT_EQ(SlotsTaken(32), 0) << command;
        EXPECT_EQ(SlotsTaken(33), 5) << command;
    }
    fillNextPage();
    CurrentGrid()->SelectAll();
    Run(DefaultFile);
    EXPECT_EQ(SlotsTaken(32), 0);
    EXPECT_EQ(SlotsTaken(33), 5);
}

TEST_F(DefaultColumn, TakesLinkedCellsAlongInMarkedRowsToo) {
    Fill({2, 3});
    SelectRows({3});
    Run(MarkRow);
    SetCell(0, RTON, "67.0");
    for (int row : {2, 3})
        for (int col : {RCOD, TCOD})
            SetCell(row, col, "023");
    RunOnColumn(DefaultMarked, RTON);
    for (int col : {RTON, TTON})
        EXPECT_EQ(Column(col, {2, 3}), (Texts{"OFF", "67.0"})) << col;
    for (int col : {RCOD, TCOD})
        EXPECT_EQ(Column(col, {2, 3}), (Texts{"023", "OFF"})) << col;
}

TEST_F(DefaultMarkedRows, FromTheMenuAreThoseOfTheColumnThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({2, 3});
    SelectRows({2});
    Run(MarkRow);
    SetCell(0, DESC, "NEW");
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DefaultMarked);
    ClickColumnCommand(DESC, DefaultMarked);
    EXPECT_EQ(Column(DESC, {2, 3}), (Texts{"NEW", "row3"}));
}

TEST_F(Renumbering, InSequenceCountsRowsWithDataOnly) {
    Fill({1, 5, 9});
    RunOnColumn(InSequence, MNUM);
    EXPECT_EQ(Column(MNUM, {1, 5, 9}), (Texts{"1", "2", "3"}));
    EXPECT_EQ((Texts{Shown(1), Shown(5), Shown(9)}), (Texts{"001", "002", "003"}));
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 5, 9}));
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, MNUM));
}

TEST_F(Renumbering, ToRowNumbersGivesEveryRowItsOwn) {
    Fill({1, 5, 9, 122});
    for (int row : {1, 5, 9, 122})
        SetCell(row, MNUM, "77");
    RunOnColumn(ToRowNum, MNUM);
    EXPECT_EQ(Column(MNUM, {1, 5, 9, 122}), (Texts{"1", "5", "9", "122"}));
    EXPECT_EQ(Column(PRIM, {1, 5}), (Texts{"", ""}));
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 5, 9, 122}));
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, MNUM));
}

TEST_F(Renumbering, OnP25PagesWritesThePrimaryAndCountsGuardRows) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11});
    RunOnColumn(InSequence, MNUM);
    EXPECT_EQ(Column(MNUM, {1, 10, 11, 231, 232}), (Texts{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(Column(PRIM, {1, 10, 11, 231, 232}), (Texts{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(Cell(10, SHD0), "011") << "links stay";
    EXPECT_EQ(Cell(11, SHAD), "S-010");
    RunOnColumn(ToRowNum, MNUM);
    EXPECT_EQ(Column(MNUM, {1, 10, 11, 231, 232}), (Texts{"1", "10", "11", "231", "232"}));
    EXPECT_EQ(Column(PRIM, {1, 10, 11, 231, 232}), (Texts{"1", "10", "11", "231", "232"}));
}

TEST_F(Renumbering, FromTheMenuOfTheNumberColumn) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({2, 7});
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, InSequence);
    ExpectQuestion(dialogs, ToRowNum);
    ClickColumnCommand(MNUM, InSequence);
    EXPECT_EQ(Column(MNUM, {2, 7}), (Texts{"1", "2"}));
    ClickColumnCommand(MNUM, ToRowNum);
    EXPECT_EQ(Column(MNUM, {2, 7}), (Texts{"2", "7"}));
}

TEST_F(DefaultFileCommand, FillsEveryRowFromTheDefaultRow) {
    Fill({3, 4});
    SetCell(0, RFRQ, "70.0000");
    const Texts defaults = RowTexts(0);
    CurrentParameters().Flags = 0x1A;
    CurrentGrid()->SelectAll();
    Run(DefaultFile);
    EXPECT_EQ(RowTexts(0), defaults);
    EXPECT_EQ(FilledRows().size(), 122u);
    EXPECT_EQ(Column(DESC, {1, 3, 122}), (Texts{"LOW   001", "LOW   003", "LOW   122"}));
    EXPECT_EQ(Column(RFRQ, {1, 122}), (Texts{"70.0000", "70.0000"}));
    EXPECT_EQ(CurrentParameters().Flags, 0);
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, 0));
}

TEST_F(DefaultFileCommand, FillsOnlySelectedRowsAndTheContextRow) {
    Fill({3, 4});
    SelectRows({7});
    ContextRow = 9;
    Run(DefaultFile);
    EXPECT_EQ(FilledRows(), (std::vector<int>{7, 9}));
}

TEST_F(DefaultFileCommand, WithAContextRowOfALongerPageFillsTheSelection) {
    SelectRows({7});
    ContextRow = 400;
    Run(DefaultFile);
    EXPECT_EQ(FilledRows(), std::vector<int>{7});
}

TEST_F(DefaultFileCommand, DealsTheZonesOfAP25PageAfresh) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11, 12});
    ContextRow = 10;
    CurrentGrid()->SelectAll();
    Run(DefaultFile);
    EXPECT_EQ(SlotsTaken(0), 16);
    EXPECT_EQ(SlotsTaken(13), 16);
    EXPECT_EQ(SlotsTaken(14), 6);
    EXPECT_EQ(SlotsTaken(15), 2);
    EXPECT_EQ(Column(SHAD, {10, 11, 12}), (Texts{"N", "N", "N"}));
    EXPECT_EQ(Column(PRIM, {10, 232}), (Texts{"010", "232"}));
}

TEST_F(DefaultFileCommand, ForgetsLocksAndPaintOfFormerRows) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11});
    CurrentGrid()->SetCellBackgroundColour(11, RFRQ, Orange());
    SelectRows({10, 11});
    Run(MarkRow);
    CurrentGrid()->SelectAll();
    Run(DefaultFile);
    for (int row : {10, 11})
        for (int col = 0; col < 32; ++col) {
            EXPECT_EQ(IsReadOnly(row, col), col == SHAD) << "row " << row << " column " << col;
            EXPECT_EQ(Paint(row, col), Plain()) << "row " << row << " column " << col;
        }
    for (int row : {231, 232})
        for (int col : {MNUM, SCAN, ZONE})
            EXPECT_TRUE(IsReadOnly(row, col)) << "guard row " << row << " column " << col;
    EXPECT_TRUE(IsReadOnly(0, MNUM));
}

TEST_F(CellMarks, ThatAreForgottenSpareWhatThePageNeeds) {
    Retarget(Kdrv716, 0);
    for (int row : {5, GD1}) {
        CurrentGrid()->SetReadOnly(row, SCAN, true);
        CurrentGrid()->SetReadOnly(row, RFRQ, row == 5);
        CurrentGrid()->SetCellBackgroundColour(row, RFRQ, Orange());
    }
    ClearMarksOfRows(CurrentGrid());
    EXPECT_EQ(Locked(5), std::vector<int>{SHAD});
    EXPECT_EQ(Locked(GD1), (std::vector<int>{MNUM, SHAD, SCAN, ZONE}));
    for (int row : {5, GD1})
        EXPECT_EQ(Paint(row, RFRQ), Plain()) << "row " << row;
}

TEST_F(DefaultFileCommand, FromTheMenuOfTheCornerReachesTheWholePage) {
    testbench::ShowAndFocus(*MainFrame);
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DefaultFile);
    ClickCommand([] { return testbench::CornerSpot(*CurrentGrid()); }, DefaultFile);
    EXPECT_EQ(FilledRows().size(), 122u);
}

TEST_F(DefaultsCommands, TellThatTheyAreMissing) {
    testbench::ShowAndFocus(*MainFrame);
    const Texts before = RowTexts(0);
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Save Radio Default Data?", " ! Currently UnImplemented !")
        .Style(testbench::PlainBox);
    dialogs.ExpectMessage("Load Radio Default Data", " ! Currently UnImplemented !")
        .Style(testbench::PlainBox);
    ClickRowCommand(0, SaveDefault);
    ClickRowCommand(0, LoadDefault);
    EXPECT_EQ(RowTexts(0), before);
    EXPECT_TRUE(FilledRows().empty());
}

TEST_F(ClearHighlight, TakesPaintOfShownColumnsAwayMarksIncluded) {
    Fill({2, 3});
    SelectRows({2, 122});
    Run(MarkRow);
    CurrentParameters().Flags |= 0x02;
    CurrentGrid()->SetCellBackgroundColour(3, RFRQ, Orange());
    CurrentGrid()->SetCellBackgroundColour(0, DESC, Orange());
    testbench::RunCommand(6016);
    for (int col : {MNUM, SCAN, DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD})
        for (int row : {0, 2, 3, 122})
            EXPECT_EQ(Paint(row, col), Plain()) << "row " << row << " column " << col;
    EXPECT_EQ(CurrentParameters().Flags, 0x02);
}

TEST_F(ClearHighlight, LeavesHiddenColumnsTheirPaint) {
    SelectRows({2});
    Run(MarkRow);
    testbench::RunCommand(6016);
    for (int col : {MFLG, PRIM, SHAD, BAND, ZONE, RSQL, RTGP, SHD0, RONL, TFLG})
        EXPECT_EQ(Paint(2, col), Teal()) << "column " << col;
}

TEST_F(ClearHighlight, GivesTheBackgroundOfTheFirstCell) {
    CurrentGrid()->SetCellBackgroundColour(0, 0, *wxCYAN);
    CurrentGrid()->SetCellBackgroundColour(2, RFRQ, Orange());
    testbench::RunCommand(6016);
    EXPECT_EQ(Paint(2, RFRQ), *wxCYAN);
    EXPECT_EQ(Paint(122, DESC), *wxCYAN);
    EXPECT_EQ(Paint(2, ZONE), Plain());
}

TEST_F(MissingClipboard, IsToldInABoxEach) {
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage("Copy", "Copy selection to clipboard.\n\nNot implemented yet.");
    dialogs.ExpectMessage("Paste", "Paste contents of clipboard.\n\nNot implemented yet.");
    TellCopyIsMissing();
    TellPasteIsMissing();
}

TEST_F(DefaultColumn, ForReceiveOnlySetsThatColumnAndNoHiddenOne) {
    testbench::ShowAndFocus(*MainFrame);
    Retarget(Kdar2000, 0);
    Fill({2, 3});
    for (int row : {2, 3}) {
        SetCell(row, RONL, "Y");
        SetCell(row, TIDC, "kept");
    }
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, DefaultCol);
    ClickColumnCommand(RONL, DefaultCol);
    EXPECT_EQ(Column(RONL, {2, 3, 4}), (Texts{"N", "N", ""}));
    EXPECT_EQ(Column(TIDC, {2, 3}), (Texts{"kept", "kept"}));
}

TEST_F(DefaultMarkedRows, ForReceiveOnlySetThatColumn) {
    Retarget(Kdar2000, 0);
    Fill({2, 3});
    SetCell(2, RONL, "Y");
    SetCell(3, RONL, "Y");
    SelectRows({3});
    Run(MarkRow);
    RunOnColumn(DefaultMarked, RONL);
    EXPECT_EQ(Column(RONL, {2, 3}), (Texts{"Y", "N"}));
}

TEST_F(DefaultColumn, OfTheModeBringsP25RowsTheSquelchesOfTheNewMode) {
    Retarget(Kdrv716, 0);
    Fill({2, 3, 4});
    SetCells(2, {{MODE, "D"}, {RSQL, "m"}, {TSQL, "g"}});
    SetCells(3, {{MODE, "w"}, {RSQL, "t"}, {TSQL, "t"}});
    SetCells(4, {{RSQL, "c"}, {TSQL, "c"}});
    RunOnColumn(DefaultCol, MODE);
    EXPECT_EQ(Column(MODE, {2, 3, 4}), (Texts{"n", "n", "n"}));
    EXPECT_EQ(Column(RSQL, {2, 3, 4}), (Texts{"x", "x", "c"}))
        << "a row that has the mode keeps its squelches";
    EXPECT_EQ(Column(TSQL, {2, 3, 4}), (Texts{"x", "x", "c"}));
    SetCell(0, MODE, "D");
    RunOnColumn(DefaultCol, MODE);
    EXPECT_EQ(Column(RSQL, {2, 3, 4}), (Texts{"m", "m", "m"}));
    EXPECT_EQ(Column(TSQL, {2, 3, 4}), (Texts{"g", "g", "g"}));
    for (int row : {2, 3, 4}) {
        const testbench::DialogScript none;
        CheckRow(CurrentGrid(), row);
        EXPECT_EQ(Column(RSQL, {row}), Texts{"m"}) << "nothing to repair";
        EXPECT_EQ(Paint(row, RSQL), Plain());
    }
}
