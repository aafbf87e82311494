// Cells pasted from a spreadsheet, and emptied, with real keys.
#include "commands/StatusOutcome.h"
#include "editing/PasteOutcome.h"
#include "editing/ScanListCell.h"
#include "tests/editing/GridHabits.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/statusbr.h>

using namespace testbench;

namespace {

class GridPaste : public GridHabits {
protected:
    static void PutOnClipboard(const std::string& text) {
        const wxClipboardLocker lock;
        ASSERT_TRUE(!!lock);
        ASSERT_TRUE(wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text))));
    }

    static void Paste(const std::string& text) {
        PutOnClipboard(text);
        PressKey("Ctrl+V");
    }

    static void PasteAt(int row, int col, const std::string& text) {
        Grid()->ClearSelection();
        GoTo(row, col);
        Paste(text);
    }

    static std::string Verdict() { return MainFrame->m_statusBar->GetStatusText(0).utf8_string(); }
    static std::string Story() { return MainFrame->m_statusBar->GetToolTipText().utf8_string(); }

    static bool IsPainted(int row, int col) {
        return Grid()->GetCellBackgroundColour(row, col) == FailColour;
    }

    /// Tags of the painted cells of a row.
    static Texts PaintedIn(int row) {
        Texts tags;
        for (int col = 0; col < ColumnTotal; ++col)
            if (IsPainted(row, col))
                tags.push_back(ColumnTag[col]);
        return tags;
    }

    static void SelectCells(int top, int left, int bottom, int right) {
        GoTo(top, left);
        Grid()->SelectBlock(top, left, bottom, right);
        PumpUntilIdle();
    }
};

using GridDelete = GridPaste;

constexpr const char* ClearsAll = "This will clear all data in selection, there is no 'undo'!";

} // namespace

TEST_F(GridPaste, FillsFromTheCursorDownAndRightOverShownColumns) {
    Retarget(Kdrv716B, 0);
    Fill({5, 6});
    // From description over mode, frequency, squelch, value, tone and code to the talk group.
    PasteAt(5, DESC,
            "ALPHA\tn\t155.2\tt\t7\t71.9\t025\n"
            "BRAVO\tn\t156\tx\t8\t67.0\t023\n");
    EXPECT_EQ(TextsOf(5, {DESC, MODE, RFRQ, RSQL, RNSV, RTON, RCOD}),
              (Texts{"ALPHA", "n", "155.20000", "t", "7", "71.9", "025"}));
    EXPECT_EQ(TextsOf(6, {DESC, MODE, RFRQ, RSQL, RNSV, RTON, RCOD}),
              (Texts{"BRAVO", "n", "156.00000", "x", "8", "67.0", "023"}));
    EXPECT_EQ(Verdict(), "14 cells pasted");
    EXPECT_EQ(Cursor(), Place(5, DESC));
    EXPECT_TRUE(Grid()->IsInSelection(6, RCOD)) << "the pasted cells are selected";
    EXPECT_FALSE(Grid()->IsInSelection(6, RTGP));
    EXPECT_FALSE(Grid()->IsInSelection(5, ZONE));
}

TEST_F(GridPaste, CarriesValuesToTheTransmitSideAndLinkedRowsAsTypingDoes) {
    MakeShadow();
    PasteAt(5, RFRQ, "155.2");
    EXPECT_EQ(TextsOf(5, {RFRQ, TFRQ}), (Texts{"155.20000", "155.20000"}));
    EXPECT_EQ(TextsOf(8, {RFRQ, TFRQ}), (Texts{"155.20000", "155.20000"})) << "the shadow";
    PasteAt(5, RTGP, "ab");
    EXPECT_EQ(TextsOf(5, {RTGP, TTGP}), (Texts{"00AB", "00AB"}));
    PasteAt(5, MODE, "D");
    EXPECT_EQ(TextsOf(5, {MODE, RSQL, TSQL}), (Texts{"D", "m", "g"}));
    PasteAt(5, RSQL, "t");
    EXPECT_EQ(Text(5, RSQL), "m") << "no squelch of a digital row";
    EXPECT_EQ(PaintedIn(5), Texts{"RSQL"});
}

TEST_F(GridPaste, TurnsTheOtherSquelchOffAsTypingDoes) {
    Fill({5});
    PasteAt(5, RTON, "100.0");
    EXPECT_EQ(TextsOf(5, {RTON, RCOD, TTON, TCOD}), (Texts{"100.0", "OFF", "100.0", "OFF"}));
    PasteAt(5, RCOD, "23");
    EXPECT_EQ(TextsOf(5, {RTON, RCOD, TTON, TCOD}), (Texts{"OFF", "023", "OFF", "023"}));
}

TEST_F(GridPaste, IntoBlankRowsFillsThemFromTheDefaultRow) {
    SetCell(0, MODE, "N");
    PasteAt(7, DESC, "PIER\nQUAY\n");
    EXPECT_EQ(TextsOf(7, {MNUM, DESC, MODE, RFRQ}), (Texts{"007", "PIER", "N", "66.0000"}));
    EXPECT_EQ(TextsOf(8, {MNUM, DESC, MODE, RFRQ}), (Texts{"008", "QUAY", "N", "66.0000"}));
    EXPECT_FALSE(RowHasData(9));
    EXPECT_EQ(Verdict(), "2 cells pasted");
}

TEST_F(GridPaste, OfEmptyTextsLeavesCellsAndBlankRowsAlone) {
    Fill({5});
    const PageState before = StateOfPage();
    PasteAt(5, DESC, "\t\t\n\t\t\n");
    EXPECT_EQ(ChangesSince(before), "");
    EXPECT_EQ(Verdict(), "Nothing to paste");
    PasteAt(5, DESC, "\tW\n");
    EXPECT_EQ(Text(5, DESC), "LOW   005");
    PasteAt(5, DESC, "");
    EXPECT_EQ(Verdict(), "Nothing to paste");
}

TEST_F(GridPaste, LeavesCellsAsTheyWereAndPaintsThemWhereTheTextCannotStand) {
    Fill({5, 6});
    PasteAt(5, DESC, "TOO LONG A NAME\tX\t999\t123.4\nok\tW\t77.7\t999\n");
    EXPECT_EQ(TextsOf(5, {DESC, MODE, RFRQ, RTON}), (Texts{"LOW   005", "W", "66.0000", "OFF"}));
    EXPECT_EQ(PaintedIn(5), (Texts{"DESC", "MODE", "RFRQ", "RTON"}));
    EXPECT_EQ(TextsOf(6, {DESC, MODE, RFRQ, RTON}), (Texts{"OK", "W", "77.7000", "OFF"}));
    EXPECT_EQ(PaintedIn(6), Texts{"RTON"});
    EXPECT_EQ(Verdict(), "5 of 8 cells NOT PASTED from row 5");
    EXPECT_EQ(Story(), "3 cells pasted\nNot pasted, since the text can't stand there: "
                       "row 5 Desc, Mode, RxFreq, RxTn; row 6 RxTn");
    EXPECT_FALSE(Grid()->IsSelection()) << "a selection would hide the paint";
    PasteAt(5, RFRQ, "66.0000");
    EXPECT_FALSE(IsPainted(5, RFRQ)) << "the value that the cell has is confirmed";
}

TEST_F(GridPaste, ThatIsRefusedLeavesABlankRowBlankAndOneThatIsFilledLaterPainted) {
    PasteAt(5, RFRQ, "999\nabc\n");
    EXPECT_FALSE(RowHasData(5));
    EXPECT_FALSE(RowHasData(6));
    EXPECT_TRUE(IsPainted(5, RFRQ) && IsPainted(6, RFRQ));
    PasteAt(7, MODE, "Q\t70.5\n");
    EXPECT_EQ(TextsOf(7, {MODE, RFRQ}), (Texts{"W", "70.5000"}));
    EXPECT_EQ(PaintedIn(7), Texts{"MODE"});
}

TEST_F(GridPaste, PassesOverReadOnlyCells) {
    MakeShadow();
    const std::string number = Text(8, MNUM), zone = Text(8, ZONE);
    PasteAt(8, MNUM, "99\tN\tY\t5\tECHO\n");
    EXPECT_EQ(TextsOf(8, {MNUM, SHAD, ZONE, DESC}), (Texts{number, "S-005", zone, "ECHO"}));
    EXPECT_EQ(PaintedIn(8), Texts{});
    EXPECT_EQ(Verdict(), "1 cell pasted");
    EXPECT_EQ(Story(), "1 cell pasted\n4 cells are read-only and were passed over");
    PasteAt(8, SHAD, "N");
    EXPECT_EQ(Verdict(), "NOT PASTED: 1 read-only cell");
}

TEST_F(GridPaste, BeyondTheLastRowOrColumnIsToldAndNotWritten) {
    const int last = CurrentParameters().Rows;
    Fill({last});
    PasteAt(last, TTON, "67.0\tOFF\tx\ny\tz\n");
    EXPECT_EQ(TextsOf(last, {TTON, TCOD}), (Texts{"67.0", "OFF"}));
    EXPECT_EQ(Story(), "2 cells pasted\n3 texts had no room on the page");
}

TEST_F(GridPaste, OfOneValueGoesIntoEverySelectedCell) {
    Fill({5, 6, 7, 8});
    SelectCells(5, RTON, 7, RTON);
    Paste("123.0\n");
    for (int row : {5, 6, 7})
        EXPECT_EQ(TextsOf(row, {RTON, TTON}), (Texts{"123.0", "123.0"})) << row;
    EXPECT_EQ(Text(8, RTON), "OFF");
    EXPECT_EQ(Verdict(), "3 cells pasted");
    EXPECT_TRUE(Grid()->IsInSelection(7, RTON)) << "the selection stays";

    Grid()->ClearSelection();
    GoTo(5, MODE);
    for (const char* key : {"Shift+Down", "Shift+Down", "Shift+Down", "Shift+Down"})
        PressKey(key);
    Paste("N");
    for (int row : {5, 6, 7, 8, 9})
        EXPECT_EQ(Text(row, MODE), "N") << row;
    EXPECT_EQ(Text(9, MNUM), "009") << "a blank row in the selection is filled";
    EXPECT_EQ(Verdict(), "5 cells pasted");
}

TEST_F(GridPaste, OfOneValueIntoAWholeColumnMakesNoMemories) {
    Fill({5, 7});
    ClickAt(ColumnLabelSpot(*Grid(), MODE));
    Paste("N");
    EXPECT_EQ(TextsOf(5, {MODE}), Texts{"N"});
    EXPECT_EQ(TextsOf(7, {MODE}), Texts{"N"});
    EXPECT_FALSE(RowHasData(6));
    EXPECT_EQ(Text(0, MODE), "W") << "the default row is no memory";
    EXPECT_EQ(Verdict(), "2 cells pasted");
}

TEST_F(GridPaste, OfOneValueLeavesRowsThatAreSelectedToBeSentAlone) {
    Fill({5, 6});
    Grid()->SelectRow(5);
    Grid()->SelectRow(6, true);
    Grid()->SetGridCursor(5, DESC);
    PumpUntilIdle();
    Paste("BAY");
    EXPECT_EQ(Text(5, DESC), "BAY");
    EXPECT_EQ(Text(6, DESC), "LOW   006");
    EXPECT_EQ(PaintedIn(5), Texts{});
    EXPECT_EQ(Verdict(), "1 cell pasted");
}

TEST_F(GridPaste, OfABlockBeginsAtTheFirstSelectedCell) {
    Fill({5, 6});
    GoTo(6, RFRQ);
    PressKey("Shift+Up");
    PressKey("Shift+Left");
    Paste("N\t70\nN\t71\n");
    EXPECT_EQ(TextsOf(5, {MODE, RFRQ}), (Texts{"N", "70.0000"}));
    EXPECT_EQ(TextsOf(6, {MODE, RFRQ}), (Texts{"N", "71.0000"}));
}

TEST_F(GridPaste, OfACopyBringsBackWhatWasSeenInEveryKindOfCell) {
    Retarget(Kdrv716B, 0);
    Fill({5, 6});
    SetCells(5, {{SCAN, "Y"},
                 {ZONE, "3"},
                 {DESC, "ab, \"C\""},
                 {MODE, "D"},
                 {RFRQ, "155.20000"},
                 {TFRQ, "156.10000"}});
    SetCells(5, {{RSQL, "n"}, {RNSV, "3"}, {RTON, "71.9"}, {RCOD, "031"}, {RTGP, "00AB"}, {RNAC, "1F0"}});
    SetCells(5, {{TSQL, "i"}, {TTON, "74.4"}, {TCOD, "032"}, {TTGP, "00CD"}, {TNAC, "2F0"}, {TIDC, "42"}});
    GoTo(5, SCAN);
    Grid()->SelectBlock(5, SCAN, 5, TIDC);
    PressKey("Ctrl+C");
    Grid()->ClearSelection();
    GoTo(6, SCAN);
    PressKey("Ctrl+V");
    for (int col : {SCAN, ZONE, DESC, MODE, RFRQ, RSQL, RNSV, RTON, RCOD, RTGP, RNAC, TFRQ, TSQL, TTON, TCOD,
                    TTGP, TNAC, TIDC})
        EXPECT_EQ(Text(6, col), Text(5, col)) << ColumnTag[col];
    EXPECT_EQ(PaintedIn(6), Texts{});
    EXPECT_EQ(Text(6, MNUM), "006");
}

TEST_F(GridPaste, OfScanBoxesTakesWhatIsSeenAMaskAndMarks) {
    Fill({5, 6});
    SetCell(5, SCAN, "21");
    GoTo(5, SCAN);
    PressKey("Ctrl+C");
    GoTo(6, SCAN);
    PressKey("Ctrl+V");
    EXPECT_EQ(Text(6, SCAN), "21");
    PasteAt(6, SCAN, "7");
    EXPECT_EQ(Text(6, SCAN), "7");
    PasteAt(6, SCAN, "_2__5");
    EXPECT_EQ(Text(6, SCAN), "18");
    for (const char* text : {"32", "-1", "☒☐☐☐", "abcde", "1.5"}) {
        PasteAt(6, SCAN, text);
        EXPECT_EQ(Text(6, SCAN), "18") << text;
        EXPECT_TRUE(IsPainted(6, SCAN)) << text;
    }
}

TEST_F(GridPaste, OfNumbersInUseOrOutOfRangeIsRefusedWithoutABox) {
    Fill({5, 6});
    PasteAt(5, MNUM, "006");
    EXPECT_EQ(Text(5, MNUM), "005");
    EXPECT_EQ(PaintedIn(5), Texts{"MNUM"});
    PasteAt(5, MNUM, "9999");
    EXPECT_EQ(Text(5, MNUM), "005");
    PasteAt(5, MNUM, "50");
    EXPECT_EQ(Text(5, MNUM), "050");
    EXPECT_EQ(PaintedIn(5), Texts{});
}

TEST_F(GridPaste, OfRowsThatWereSortedTakesTheirNumbersAlong) {
    Retarget(Kdrv716B, 0);
    Fill({5, 6, 7, 8});
    PasteAt(5, MNUM, "007\tN\tN\t1\tSEVEN\n005\tN\tN\t1\tFIVE\n6\tN\tN\t1\tSIX\n");
    EXPECT_EQ(TextsOf(5, {MNUM, PRIM, DESC}), (Texts{"007", "007", "SEVEN"}));
    EXPECT_EQ(TextsOf(6, {MNUM, PRIM, DESC}), (Texts{"005", "005", "FIVE"}));
    EXPECT_EQ(TextsOf(7, {MNUM, PRIM, DESC}), (Texts{"006", "006", "SIX"}));
    for (int row : {5, 6, 7})
        EXPECT_EQ(PaintedIn(row), Texts{}) << row;
    PasteAt(5, MNUM, "005\n008\n");
    EXPECT_EQ(TextsOf(5, {MNUM}), Texts{"007"}) << "005 is kept";
    EXPECT_EQ(TextsOf(6, {MNUM}), Texts{"005"}) << "008 is in use";
    EXPECT_EQ(PaintedIn(5), Texts{"MNUM"});
    EXPECT_EQ(PaintedIn(6), Texts{"MNUM"});
}

TEST_F(GridPaste, OfZonesMovesSlotsAndLeavesFullZones) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    const int before = ZoneSlots[0];
    PasteAt(5, ZONE, "4");
    EXPECT_EQ(Text(5, ZONE), "4");
    EXPECT_EQ(ZoneSlots[0], before - 1);
    EXPECT_EQ(ZoneSlots[3], 1);
    ZoneSlots[6] = ZoneCapacity;
    PasteAt(5, ZONE, "7");
    EXPECT_EQ(Text(5, ZONE), "4");
    EXPECT_EQ(ZoneSlots[3], 1) << "a refused zone costs no slot";
    EXPECT_EQ(PaintedIn(5), Texts{"ZONE"});
    PasteAt(9, ZONE, "4");
    EXPECT_EQ(Text(9, ZONE), "4");
    EXPECT_EQ(ZoneSlots[3], 2);
    EXPECT_EQ(ZoneSlots[0], before - 1) << "the blank row holds one slot, of its zone";
}

TEST_F(GridPaste, OnAModulePageTakesTheBandFirst) {
    RetargetModule();
    Fill({5});
    PasteAt(5, BAND, "AM 225-400\t3\tTOWER\tn/a\t300.1\n");
    EXPECT_EQ(TextsOf(5, {BAND, SCAN, DESC, RFRQ}), (Texts{"AM 225-400", "3", "TOWER", "300.1000"}));
    EXPECT_EQ(PaintedIn(5), Texts{});
    PasteAt(5, RFRQ, "155.0");
    EXPECT_EQ(Text(5, RFRQ), "300.1000");
    EXPECT_EQ(PaintedIn(5), Texts{"RFRQ"});
}

TEST_F(GridPaste, TakesWhatASpreadsheetMakesOfNumbers) {
    Retarget(Kdrv716, 0);
    Fill({5});
    // Spreadsheets drop zeros at both ends, and write a comma in many countries.
    const struct {
        int col;
        const char *text, *cell;
    } cases[] = {
        {RFRQ, "151.1", "151.1000"},    {RFRQ, "151", "151.0000"},
        {RFRQ, "151,1375", "151.1375"}, {RFRQ, "154.452500", "154.4525"},
        {RFRQ, " 151.25 ", "151.2500"}, {RTON, "67", "67.0"},
        {RTON, "100", "100.0"},         {RCOD, "25", "025"},
        {RTGP, "12", "0012"},           {RNAC, "7", "007"},
        {TIDC, "0000042", "42"},
    };
    for (const auto& c : cases) {
        PasteAt(5, c.col, c.text);
        EXPECT_EQ(Text(5, c.col), c.cell) << ColumnTag[c.col] << " " << c.text;
        EXPECT_EQ(PaintedIn(5), Texts{}) << c.text;
    }
}

TEST_F(GridPaste, OfTextAsLibreOfficeCalcCopiesItGivesItsChannels) {
    // Calc showed these cells as numbers, writes no last line end, and has no zeros at the end.
    PasteAt(8, DESC,
            "HARBOUR 1\tW\t70.1\t100\tOFF\n"
            "F\xC3\xA4hre\tW\t70.1375\tOFF\t23\n"
            "PIER 7\tN\t71.025\t67\tOFF");
    EXPECT_EQ(TextsOf(8, {DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}),
              (Texts{"HARBOUR 1", "W", "70.1000", "100.0", "OFF", "70.1000", "100.0", "OFF"}));
    EXPECT_EQ(TextsOf(9, {DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}),
              (Texts{"LOW   009", "W", "70.1375", "OFF", "023", "70.1375", "OFF", "023"}));
    EXPECT_EQ(TextsOf(10, {DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}),
              (Texts{"PIER 7", "N", "71.0250", "67.0", "OFF", "71.0250", "67.0", "OFF"}));
    EXPECT_EQ(PaintedIn(9), Texts{"DESC"}) << "a letter that the radio can't show";
}

TEST_F(GridPaste, WithAnOpenEditorGoesIntoTheEditor) {
    Fill({5, 6});
    GoTo(5, DESC);
    TypeText("A");
    Paste("BC\n");
    PressKey("Escape");
    EXPECT_EQ(Text(5, DESC), "LOW   005");
    EXPECT_EQ(Text(6, DESC), "LOW   006");
}

TEST_F(GridPaste, OfLegacyKeysWorksToo) {
    Fill({5, 6});
    SetCell(5, DESC, "HARBOUR");
    GoTo(5, DESC);
    PressKey("Ctrl+Insert");
    GoTo(6, DESC);
    PressKey("Shift+Insert");
    EXPECT_EQ(Text(6, DESC), "HARBOUR");
}

TEST(PasteOutcomes, SayTheVerdictFirst) {
    PasteOutcome outcome;
    EXPECT_EQ(outcome.Text(), "Nothing to paste");
    outcome.withoutRoom = 2;
    EXPECT_EQ(outcome.Text(), "NOT PASTED: no room");
    outcome.locked = 2;
    EXPECT_EQ(outcome.Text(), "NOT PASTED: 2 read-only cells");
    outcome.taken = 1;
    EXPECT_EQ(outcome.Text(), "1 cell pasted");
    outcome.refused = {{7, RFRQ}, {9, MODE}};
    EXPECT_EQ(outcome.Text(), "2 of 3 cells NOT PASTED from row 7");
}

TEST_F(GridDelete, OnABlockAsksFirstAndEmptiesNothingWhenCancelled) {
    Fill({5, 6});
    const PageState before = StateOfPage();
    SelectCells(5, DESC, 6, RFRQ);
    {
        DialogScript dialogs;
        dialogs.ExpectMessage("Empty cells in Selection?", ClearsAll, wxID_CANCEL).Style(wxOK | wxCANCEL);
        PressKey("Delete");
    }
    EXPECT_EQ(ChangesSince(before), "");
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Grid()->IsInSelection(6, RFRQ));
}

TEST_F(GridDelete, OnABlockEmptiesTextsAndKeepsCellsThatAlwaysHoldAValue) {
    Fill({5, 6});
    SelectCells(5, DESC, 6, RTON);
    DialogScript dialogs;
    dialogs.ExpectMessage("Empty cells in Selection?", ClearsAll);
    PressKey("Delete");
    for (int row : {5, 6})
        EXPECT_EQ(TextsOf(row, {DESC, MODE, RFRQ, RTON, TFRQ}), (Texts{"", "W", "", "OFF", "88.0000"}))
            << row;
    EXPECT_EQ(Verdict(), "4 cells emptied, 4 keep their values");
}

TEST_F(GridDelete, OnCellsThatAlwaysHoldAValueAsksNothing) {
    Fill({5, 6});
    const PageState before = StateOfPage();
    SelectCells(5, RTON, 6, RCOD);
    PressKey("Delete");
    EXPECT_EQ(ChangesSince(before), "");
    EXPECT_EQ(Verdict(), "0 cells emptied, 4 keep their values");
}

TEST_F(GridDelete, OnFrequenciesOfAPrimaryEmptiesThoseOfItsShadows) {
    MakeShadow();
    SelectCells(5, RFRQ, 5, TFRQ);
    DialogScript dialogs;
    dialogs.ExpectMessage("Empty cells in Selection?", ClearsAll);
    PressKey("Delete");
    EXPECT_EQ(TextsOf(5, {RFRQ, TFRQ}), (Texts{"", ""}));
    EXPECT_EQ(TextsOf(8, {RFRQ, TFRQ}), (Texts{"", ""}));
}

TEST_F(GridDelete, OnWholeRowsIsTheCommandThatClearsThem) {
    Fill({5, 6, 7});
    ClickAt(RowLabelSpot(*Grid(), 5));
    PressKey("Shift+Down");
    {
        DialogScript dialogs;
        dialogs.ExpectMessage("Clear rows in Selection?", ClearsAll, wxID_CANCEL);
        PressKey("Delete");
    }
    EXPECT_TRUE(RowHasData(5));
    DialogScript dialogs;
    dialogs.ExpectMessage("Clear rows in Selection?", ClearsAll);
    PressKey("Delete");
    EXPECT_FALSE(RowHasData(5) || RowHasData(6));
    EXPECT_TRUE(RowHasData(7));
}

TEST_F(GridDelete, OnOneTextCellOpensTheEditorWithTheWholeText) {
    Fill({5});
    for (int col : {DESC, RFRQ}) {
        GoTo(5, col);
        const std::string text = Text(5, col);
        PressKey("Delete");
        ASSERT_TRUE(IsOpen()) << ColumnTag[col];
        auto* const control = dynamic_cast<wxTextCtrl*>(EditorAt(5, col)->GetControl());
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->GetValue().utf8_string(), text);
        EXPECT_EQ(control->GetStringSelection().utf8_string(), text);
        PressKey("Delete");
        EXPECT_EQ(control->GetValue(), "") << "a second Delete empties it";
        PressKey("Escape");
        EXPECT_EQ(Text(5, col), text);
    }
}
