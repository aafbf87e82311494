// Paint of repaired cells: when it is removed, and when it is kept.
#include "commands/CommandIds.h"
#include "editing/Shadows.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/CellTools.h"
#include "tests/frame/FrameTools.h"

#include <wx/menu.h>

#include <set>

using namespace testbench;

namespace {

class CellPaint : public CellTest {
protected:
    static void PaintAll(int row) {
        for (int col = 0; col < ColumnTotal; ++col)
            Grid()->SetCellBackgroundColour(row, col, FailColour);
    }

    static bool IsPainted(int row, int col) {
        return Grid()->GetCellBackgroundColour(row, col) == FailColour;
    }

    /// Tags of the columns without paint, after all of them were painted.
    static std::set<std::string> PlainOf(int row) {
        std::set<std::string> tags;
        for (int col = 0; col < ColumnTotal; ++col)
            if (!IsPainted(row, col))
                tags.insert(ColumnTag[col]);
        return tags;
    }

    static void Run(int command, const char* caption) {
        DialogScript dialogs;
        dialogs.ExpectMessage(caption, AnyText());
        MainFrame->m_contextMenu->SendEvent(command);
    }

    static void RunOnRow(int command, const char* caption, int row) {
        Grid()->ClearSelection();
        Grid()->SelectRow(row, true);
        ContextRow = row;
        Run(command, caption);
    }

    static void ClearRow(int row) { RunOnRow(IdClearRow, "Clear rows in Selection?", row); }
    static void DefaultRow(int row) { RunOnRow(IdDefaultRow, "Change Selection to defaults?", row); }
};

/// An edit of a cell, and the columns whose paint it removes.
struct Edit {
    int col;
    const char* text;
    bool isChoice;
    std::set<std::string> plain;
};

} // namespace

TEST_F(CellPaint, GoesFromEveryP25CellThatTheUserEntersAValueInAndFromThoseItIsCarriedTo) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    constexpr bool choice = true, typed = false;
    const Edit edits[] = {
        {MNUM, "77", typed, {"MNUM"}},
        {SCAN, "Y", choice, {"SCAN"}},
        {ZONE, "3", choice, {"ZONE"}},
        {DESC, "ALPHA", typed, {"DESC"}},
        {MODE, "D", choice, {"MODE", "RSQL", "TSQL"}},
        {RSQL, "n", choice, {"RSQL"}},
        {TSQL, "i", choice, {"TSQL"}},
        {MODE, "w", choice, {"MODE", "RSQL", "TSQL"}},
        {RSQL, "t", choice, {"RSQL", "TSQL"}},
        {RFRQ, "155.01250", typed, {"RFRQ", "TFRQ"}},
        {TFRQ, "155.02500", typed, {"TFRQ"}},
        {RNSV, "7", typed, {"RNSV"}},
        {RTON, "71.9", choice, {"RTON", "TTON"}},
        {RCOD, "026", choice, {"RCOD", "TCOD"}},
        {TTON, "74.4", choice, {"TTON"}},
        {TCOD, "031", choice, {"TCOD"}},
        {RTGP, "AB", typed, {"RTGP", "TTGP"}},
        {RNAC, "1F", typed, {"RNAC", "TNAC"}},
        {TTGP, "CD", typed, {"TTGP"}},
        {TNAC, "2F", typed, {"TNAC"}},
        {TIDC, "42", typed, {"TIDC"}},
    };
    for (const Edit& edit : edits) {
        SCOPED_TRACE(std::string(ColumnTag[edit.col]) + " " + edit.text);
        PaintAll(5);
        if (edit.isChoice)
            Choose(5, edit.col, edit.text);
        else
            TypeIntoCell(*Grid(), 5, edit.col, edit.text);
        EXPECT_EQ(PlainOf(5), edit.plain) << Text(5, edit.col);
    }
}

TEST_F(CellPaint, GoesFromEveryAnalogCellThatTheUserEntersAValueIn) {
    Fill({5});
    PaintAll(5);
    GoTo(5, SCAN);
    PressKey("3");
    EXPECT_EQ(Text(5, SCAN), "4");
    EXPECT_EQ(PlainOf(5), std::set<std::string>{"SCAN"}) << "by key";
    PaintAll(5);
    // The first box. In a narrow font the middle of the cell is behind the last one.
    const wxRect cell = Grid()->CellToRect(5, SCAN);
    ClickAt(*Grid()->GetGridWindow(),
            Grid()->CalcScrolledPosition(wxPoint(cell.x + 5, cell.y + cell.height / 2)));
    EXPECT_EQ(Text(5, SCAN), "5");
    EXPECT_EQ(PlainOf(5), std::set<std::string>{"SCAN"}) << "by click";
    PaintAll(5);
    Choose(5, MODE, "N");
    EXPECT_EQ(PlainOf(5), std::set<std::string>{"MODE"});
    Retarget(Kdar2000, 0);
    Fill({5});
    PaintAll(5);
    Choose(5, SCAN, "Y");
    EXPECT_EQ(PlainOf(5), std::set<std::string>{"SCAN"});
    PaintAll(5);
    Choose(5, RONL, "Y");
    EXPECT_EQ(PlainOf(5), std::set<std::string>{"RONL"});
}

TEST_F(CellPaint, GoesFromTheBandAndTheCellsThatItWrites) {
    RetargetModule();
    Fill({5});
    PaintAll(5);
    Choose(5, BAND, "AM 225-400");
    EXPECT_EQ(PlainOf(5),
              (std::set<std::string>{"BAND", "MODE", "RFRQ", "TFRQ", "RTON", "RCOD", "TTON", "TCOD"}));
    PaintAll(5);
    Choose(5, BAND, "FM 30-50");
    EXPECT_EQ(PlainOf(5), (std::set<std::string>{"BAND", "RFRQ", "TFRQ"}));
    TypeIntoCell(*Grid(), 5, RFRQ, "230.0");
    SetCell(5, RFRQ, "230.0000");
    PaintAll(5);
    Choose(5, BAND, "AM 225-400");
    EXPECT_TRUE(IsPainted(5, RFRQ)) << "the frequency was kept";
}

TEST_F(CellPaint, GoesFromTheFrequenciesOfShadowsThatAPrimaryCarries) {
    Retarget(Kdrv716, 0);
    Fill({5, 6});
    SetCells(5, {{MFLG, "10"}, {SHD0, "006"}});
    SetCells(6, {{MFLG, "01"}});
    PaintAll(6);
    TypeIntoCell(*Grid(), 5, RFRQ, "155.0125");
    EXPECT_EQ(PlainOf(6), (std::set<std::string>{"RFRQ", "TFRQ"}));
}

TEST_F(CellPaint, StaysWhenAnEditIsGivenUpOrRefused) {
    Fill({5});
    PaintAll(5);
    GoTo(5, DESC);
    TypeText("ALPHA");
    PressKey("Escape");
    TypeIntoCell(*Grid(), 5, RFRQ, "7");
    EXPECT_EQ(PlainOf(5), std::set<std::string>{});
}

TEST_F(CellPaint, OfAMarkStaysOnACellThatIsEdited) {
    Fill({5});
    Grid()->SelectRow(5);
    MainFrame->m_contextMenu->SendEvent(IdMarkRow);
    TypeIntoCell(*Grid(), 5, DESC, "ALPHA");
    TypeIntoCell(*Grid(), 5, MNUM, "77");
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, DESC), MarkColour);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, MNUM), MarkColour);
    ClearRow(5);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, DESC), MarkColour) << "marks stay until they are cleared";
}

TEST_F(CellPaint, GoesWithARowThatIsCleared) {
    Fill({5, 6});
    PaintAll(5);
    PaintAll(6);
    ClearRow(5);
    EXPECT_EQ(PlainOf(5).size(), size_t{ColumnTotal});
    EXPECT_EQ(PlainOf(6).size(), 0u);
}

TEST_F(CellPaint, GoesWithARowThatIsSetToDefaults) {
    for (int radio : {Krv47, Kdrv716}) {
        Retarget(radio, 0);
        Fill({5, 6});
        PaintAll(5);
        PaintAll(6);
        DefaultRow(5);
        EXPECT_EQ(PlainOf(5).size(), size_t{ColumnTotal});
        EXPECT_EQ(PlainOf(6).size(), 0u);
    }
}

TEST_F(CellPaint, GoesWithShadowsThatAreClearedWithTheirPrimary) {
    for (const bool clear : {true, false}) {
        Retarget(Kdrv716, 0);
        Fill({5, 6});
        SetCell(5, MFLG, "10");
        SetCell(5, SHAD, "P-1");
        SetCell(5, SHD0, "006");
        SetCell(6, MFLG, "01");
        PaintAll(6);
        if (clear)
            ClearRow(5);
        else
            DefaultRow(5);
        EXPECT_FALSE(RowHasData(6));
        EXPECT_EQ(PlainOf(6).size(), size_t{ColumnTotal});
    }
}

TEST_F(CellPaint, GoesFromTheCellsThatAPasteWrites) {
    Fill({5, 6});
    ContextRow = 5;
    MainFrame->m_contextMenu->SendEvent(IdCopyRow);
    PaintAll(6);
    RunOnRow(IdPasteRow, "Paste copied data into Selection?", 6);
    EXPECT_FALSE(IsPainted(6, RFRQ));
    EXPECT_FALSE(IsPainted(6, DESC));
}

TEST_F(CellPaint, GoesFromTheCellsOfAColumnThatIsSetToDefaults) {
    Fill({5});
    PaintAll(5);
    Grid()->SelectCol(RFRQ);
    Run(IdDefaultCol, "Change Selection to default?");
    EXPECT_EQ(PlainOf(5), (std::set<std::string>{"RFRQ", "TFRQ"}));
}

// A departure: such rows have "n/a" as their mode.
TEST_F(CellPaint, IsNotPutOnTheModeOfAM225To400RowsByChecks_Departure) {
    RetargetModule();
    Fill({5, 6});
    Choose(5, BAND, "AM 225-400");
    TypeIntoCell(*Grid(), 5, RFRQ, "230.0");
    ASSERT_EQ(Text(5, MODE), "n/a");
    SetCell(6, MODE, "n/a");
    for (int time = 0; time < 2; ++time)
        CheckPage();
    EXPECT_EQ(Text(5, MODE), "n/a");
    for (int col = 0; col < ColumnTotal; ++col)
        EXPECT_FALSE(IsPainted(5, col)) << ColumnTag[col];
    EXPECT_EQ(Text(6, MODE), "N") << "an FM row has a mode";
    EXPECT_TRUE(IsPainted(6, MODE));
}
