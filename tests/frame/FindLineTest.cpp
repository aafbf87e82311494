// Finding cells of the page, with real keys.
#include "frame/FindLine.h"

#include "tests/editing/GridHabits.h"

#include <wx/notebook.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <stdexcept>

using namespace testbench;

namespace {

class Find : public GridHabits {
protected:
    static FindLine* Line() { return FindLine::Of(MainFrame->m_pagePanels[CurrentPage]); }
    static bool LineIsShown() { return Line() && Line()->IsShownOnScreen(); }

    /// The last control of a kind in the line.
    template <class Control>
    static Control& PartOfLine() {
        if (!Line())
            throw std::logic_error("there is no line");
        const wxWindowList& parts = Line()->GetChildren();
        for (auto part = parts.rbegin(); part != parts.rend(); ++part)
            if (auto* control = dynamic_cast<Control*>(*part))
                return *control;
        throw std::logic_error("the line lacks a control");
    }

    static wxTextCtrl& TextField() { return PartOfLine<wxTextCtrl>(); }
    static std::string Result() { return PartOfLine<wxStaticText>().GetLabel().utf8_string(); }

    static bool GridHasFocus() {
        const wxWindow* focus = wxWindow::FindFocus();
        return focus && (focus == Grid() || focus->GetParent() == Grid());
    }

    static void StartAt(int row, int col) {
        Grid()->ClearSelection();
        GoTo(row, col);
    }

    /// Opens the line, types the text over the former one and searches once.
    static void Search(const std::string& text) {
        PressKey("Ctrl+F");
        TypeText(text);
        PressKey("Return");
    }
};

} // namespace

TEST_F(Find, LineIsOpenedByCtrlFBelowTheGridAndClosedByEscape) {
    EXPECT_FALSE(LineIsShown());
    const wxRect before = Grid()->GetScreenRect();
    StartAt(5, DESC);
    PressKey("Ctrl+F");
    ASSERT_TRUE(LineIsShown());
    EXPECT_TRUE(TextField().HasFocus());
    PumpUntilIdle();
    EXPECT_GE(TextField().GetScreenRect().y, Grid()->GetScreenRect().GetBottom());
    EXPECT_EQ(Grid()->GetScreenRect().GetTopLeft(), before.GetTopLeft());
    PressKey("Escape");
    EXPECT_FALSE(LineIsShown());
    EXPECT_TRUE(GridHasFocus());
    EXPECT_EQ(Cursor(), Place(5, DESC));
    PumpUntilIdle();
    EXPECT_EQ(Grid()->GetScreenRect(), before) << "the grid has its place again";
}

TEST_F(Find, GoesThroughMatchesInRowOrderAndRoundTheEnd) {
    Fill({3, 5, 9});
    SetCells(3, {{DESC, "ferry 2"}});
    SetCells(5, {{DESC, "FERRY 1"}, {RFRQ, "70.5000"}});
    SetCells(9, {{DESC, "OLD FERRY"}});
    StartAt(4, MNUM);
    Search("Ferry");
    EXPECT_EQ(Cursor(), Place(5, DESC));
    EXPECT_EQ(Result(), "Row 005, Desc");
    EXPECT_TRUE(TextField().HasFocus());
    PressKey("Return");
    EXPECT_EQ(Cursor(), Place(9, DESC));
    PressKey("Return");
    EXPECT_EQ(Cursor(), Place(3, DESC));
    EXPECT_EQ(Result(), "Row 003, Desc - continued from the first row");
    PressKey("Shift+Return");
    EXPECT_EQ(Cursor(), Place(9, DESC));
    EXPECT_EQ(Result(), "Row 009, Desc - continued from the last row");
    PressKey("Shift+Return");
    EXPECT_EQ(Cursor(), Place(5, DESC));
    EXPECT_EQ(Result(), "Row 005, Desc");
}

TEST_F(Find, GoesFromCellToCellWithinARow) {
    Fill({5});
    SetCells(5, {{RTON, "123.0"}, {TTON, "123.0"}});
    StartAt(1, MNUM);
    Search("123.0");
    EXPECT_EQ(Cursor(), Place(5, RTON));
    PressKey("Return");
    EXPECT_EQ(Cursor(), Place(5, TTON));
    EXPECT_EQ(Result(), "Row 005, TxTn");
}

TEST_F(Find, FindsFrequenciesByTheirValue) {
    Fill({5, 6});
    SetCell(5, RFRQ, "154.45250");
    SetCell(6, TFRQ, "154.4525");
    StartAt(1, MNUM);
    Search("154.4525");
    EXPECT_EQ(Cursor(), Place(5, RFRQ));
    PressKey("Return");
    EXPECT_EQ(Cursor(), Place(6, TFRQ));
    StartAt(1, MNUM);
    Search("154.45250");
    EXPECT_EQ(Cursor(), Place(5, RFRQ));
    PressKey("Return");
    EXPECT_EQ(Cursor(), Place(6, TFRQ));
}

TEST_F(Find, SearchesShownColumnsOnlyAndWhatTheyShow) {
    Fill({5});
    SetCells(5, {{MFLG, "hidden"}, {TFLG, "hidden"}, {MNUM, "5"}});
    StartAt(1, MNUM);
    Search("hidden");
    EXPECT_EQ(Cursor(), Place(1, MNUM));
    EXPECT_EQ(Result(), "Not found on this page");
    Search("005");
    EXPECT_EQ(Cursor(), Place(5, MNUM)) << "the number is shown with zeros";
}

TEST_F(Find, BeginsWithTheCursorsOwnCellForANewText) {
    Fill({5, 6});
    SetCell(5, DESC, "PIER");
    SetCell(6, DESC, "PIERS");
    StartAt(5, DESC);
    Search("pier");
    EXPECT_EQ(Cursor(), Place(5, DESC));
    EXPECT_EQ(Result(), "Row 005, Desc");
    PressKey("Return");
    EXPECT_EQ(Cursor(), Place(6, DESC));
    PressKey("s");
    EXPECT_EQ(Result(), "") << "the result was that of another text";
    PressKey("Shift+Return");
    EXPECT_EQ(Cursor(), Place(6, DESC));
    PressKey("Return");
    EXPECT_EQ(Result(), "Row 006, Desc - continued from the first row") << "the only match";
}

TEST_F(Find, KeepsItsTextForTheNextTimeAndReplacesItWhenTyped) {
    StartAt(5, DESC);
    Search("abc");
    PressKey("Escape");
    PressKey("Ctrl+F");
    EXPECT_EQ(TextField().GetValue(), "abc");
    EXPECT_EQ(Result(), "");
    TypeText("x");
    EXPECT_EQ(TextField().GetValue(), "x");
}

TEST_F(Find, TakesTheTextOfAnOpenEditorFirst) {
    Fill({5});
    StartAt(5, DESC);
    TypeText("NEW");
    ASSERT_TRUE(IsOpen());
    PressKey("Ctrl+F");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Text(5, DESC), "NEW");
    EXPECT_TRUE(TextField().HasFocus());
}

TEST_F(Find, LineIsClosedByEscapeInTheGridButNotByThatOfAnEditor) {
    Fill({5});
    PressKey("Ctrl+F");
    StartAt(5, DESC);
    TypeText("NEW");
    PressKey("Escape");
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(LineIsShown());
    PressKey("Escape");
    EXPECT_FALSE(LineIsShown());
    EXPECT_TRUE(GridHasFocus());
}

TEST_F(Find, EachPageHasALineOfItsOwn) {
    AddFreshPage(Kdrv716B, 0);
    SetCell(1, DESC, "SECOND");
    StartAt(0, MNUM);
    Search("second");
    EXPECT_EQ(Result(), "Row 001, Desc");
    MainFrame->m_notebook->SetSelection(0);
    PumpUntilIdle();
    EXPECT_FALSE(LineIsShown());
    Search("second");
    EXPECT_EQ(Result(), "Not found on this page");
    MainFrame->m_notebook->SetSelection(1);
    PumpUntilIdle();
    EXPECT_TRUE(LineIsShown());
    EXPECT_EQ(Result(), "Row 001, Desc");
}

TEST_F(Find, ShowsAMatchThatWasOutOfSight) {
    Fill({60});
    StartAt(1, MNUM);
    ASSERT_FALSE(Grid()->IsVisible(60, DESC));
    Search("low   060");
    EXPECT_EQ(Cursor(), Place(60, DESC));
    EXPECT_TRUE(Grid()->IsVisible(60, DESC));
}

TEST_F(Find, SelectsTheMatchAloneAndChangesNothingOnThePage) {
    Fill({5, 6});
    const PageState before = StateOfPage();
    StartAt(1, MNUM);
    Search("low   006");
    EXPECT_TRUE(Grid()->IsInSelection(6, DESC)) << "the cursor isn't drawn without the focus";
    PressKey("Shift+Return");
    Search("low   005");
    const wxGridBlocks blocks = Grid()->GetSelectedBlocks();
    ASSERT_TRUE(blocks.begin() != blocks.end());
    EXPECT_TRUE(*blocks.begin() == wxGridBlockCoords(5, DESC, 5, DESC));
    PressKey("Escape");
    EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(Find, ThatFindsNothingKeepsCursorAndSelection) {
    Fill({5});
    StartAt(5, DESC);
    Grid()->SelectRow(5);
    Search("no such text");
    EXPECT_EQ(Cursor(), Place(5, DESC));
    EXPECT_TRUE(Grid()->IsInSelection(5, MFLG)) << "rows to be sent stay selected";
}
