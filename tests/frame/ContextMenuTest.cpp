// The right-click menu of the grids, by real clicks.
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/menu.h>

using namespace testbench;

namespace {

using Ids = std::vector<int>;

constexpr int DefaultRow = 6024, CreateShadow = 6025, CopyRow = 6026, PasteRow = 6027, ClearRow = 6028,
              InsertRow = 6029, DeleteRow = 6030, MarkRow = 6031, DefaultCol = 6032, DefaultMarked = 6033,
              ToRowNum = 6034, InSequence = 6035, DefaultFile = 6036, SaveDefault = 6037, LoadDefault = 6038;

class ContextMenu : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    static bool IsOpen() { return MainFrame->m_contextMenu->GetInvokingWindow() != nullptr; }

    /// Ids of the menu that the action opens; the menu is then closed again. Empty if none opens.
    static Ids MenuOf(const std::function<void(Robot&)>& action) {
        Ids ids;
        RunWithRobot([&](Robot& robot) {
            action(robot);
            robot.Settle();
            if (!robot.WaitFor(IsOpen, 400))
                return;
            ids = robot.Ask([] {
                Ids shown;
                for (const wxMenuItem* item : MainFrame->m_contextMenu->GetMenuItems())
                    shown.push_back(item->GetId());
                return shown;
            });
            for (int tries = 0; tries < 20 && robot.Ask(IsOpen); ++tries) {
                robot.Press("Escape");
                robot.WaitFor([] { return !IsOpen(); }, 200);
            }
        });
        return ids;
    }

    static Ids MenuAt(const std::function<wxPoint()>& spot) {
        // Two clicks in one place would be a double click, which opens no menu.
        static int aside = 7;
        aside = -aside;
        return MenuOf([&spot](Robot& robot) { robot.Click(robot.Ask(spot) + wxPoint(aside, 0), 3); });
    }

    static Ids MenuOfRow(int row) {
        return MenuAt([row] { return RowLabelSpot(*CurrentGrid(), row); });
    }

    static Ids MenuOfColumn(int col) {
        return MenuAt([col] { return ColumnLabelSpot(*CurrentGrid(), col); });
    }

    /// Puts data into a row, as defaults do.
    static void Fill(int row) { FillRowsFromDefault({row}); }
};

} // namespace

TEST_F(ContextMenu, OfTheCornerSelectsTheGridAndOffersTheDefaultFile) {
    EXPECT_EQ(MenuAt([] { return CornerSpot(*CurrentGrid()); }), Ids{DefaultFile});
    EXPECT_TRUE(CurrentGrid()->IsInSelection(0, 1));
    EXPECT_TRUE(CurrentGrid()->IsInSelection(122, 31));
}

TEST_F(ContextMenu, OfRowLabel000OffersOnlyTheDefaultsCommands) {
    EXPECT_EQ(MenuOfRow(0), (Ids{LoadDefault, SaveDefault}));
    EXPECT_EQ(ContextRow, 0);
    // The row's other cells don't matter.
    SetCell(0, MFLG, "13");
    EXPECT_EQ(MenuOfRow(0), (Ids{LoadDefault, SaveDefault}));
    CurrentGrid()->ClearGrid();
    EXPECT_EQ(MenuOfRow(0), (Ids{LoadDefault, SaveDefault}));
}

TEST_F(ContextMenu, OfABlankRowsLabelOffersNothingThatNeedsData) {
    EXPECT_EQ(MenuOfRow(4), (Ids{DefaultRow, PasteRow, InsertRow, DeleteRow}));
    EXPECT_EQ(ContextRow, 4);
    EXPECT_TRUE(CurrentGrid()->IsInSelection(4, 0));
}

TEST_F(ContextMenu, OfARowWithDataOffersAllButTheShadowOnAnAnalogPage) {
    Fill(4);
    EXPECT_EQ(MenuOfRow(4), (Ids{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow}));
}

TEST_F(ContextMenu, OfARowLabelAddsTheRowToTheSelection) {
    CurrentGrid()->SelectRow(2);
    CurrentGrid()->SelectRow(7, true);
    MenuOfRow(4);
    for (int row = 0; row < 12; ++row)
        EXPECT_EQ(CurrentGrid()->IsInSelection(row, 0), row == 2 || row == 4 || row == 7) << "row " << row;
}

TEST_F(ContextMenu, OfAGuardRowOffersNeitherInsertNorDeleteNorShadow) {
    for (int row : {121, 122}) {
        EXPECT_EQ(MenuOfRow(row), (Ids{DefaultRow, PasteRow})) << "row " << row;
        EXPECT_EQ(ContextRow, row);
        Fill(row);
        EXPECT_EQ(MenuOfRow(row), (Ids{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow})) << "row " << row;
    }
    EXPECT_EQ(MenuOfRow(120), (Ids{DefaultRow, PasteRow, InsertRow, DeleteRow}));
}

TEST_F(ContextMenu, OfAP25GuardRowOffersNoShadow) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        SCOPED_TRACE(radio);
        Retarget(radio, 0);
        ASSERT_TRUE(RowHasData(GD1));
        EXPECT_EQ(MenuOfRow(GD1), (Ids{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow}));
        EXPECT_EQ(MenuOfRow(GD2), (Ids{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow}));
    }
}

TEST_F(ContextMenu, OfLastRowsWithoutGuardsIsThatOfOrdinaryRows) {
    Retarget(Kdar2000, 0);
    EXPECT_EQ(MenuOfRow(100), (Ids{DefaultRow, PasteRow, InsertRow, DeleteRow}));
    EXPECT_EQ(ContextRow, 100);
}

TEST_F(ContextMenu, OfAP25RowOffersTheShadowForDataThatIsNoShadow) {
    Retarget(Kdrv716, 0);
    const Ids withShadow{DefaultRow, CreateShadow, CopyRow,   PasteRow,
                         ClearRow,   MarkRow,      InsertRow, DeleteRow};
    const Ids withoutShadow{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow};
    const struct {
        const char* flags;
        const Ids& expected;
    } cases[] = {
        {"0", withShadow},     {"00", withShadow},    {"10", withShadow},    {"68", withShadow},
        {"78", withShadow},    {"300", withShadow},   {"", withShadow},      {"01", withoutShadow},
        {"02", withoutShadow}, {"04", withoutShadow}, {"07", withoutShadow}, {"63", withoutShadow},
    };
    for (const auto& c : cases) {
        SetCell(1, MFLG, c.flags);
        EXPECT_EQ(MenuOfRow(1), c.expected) << "MFLG \"" << c.flags << "\"";
    }
    EXPECT_EQ(MenuOfRow(2), (Ids{DefaultRow, PasteRow, InsertRow, DeleteRow})) << "blank row";
}

TEST_F(ContextMenu, OfTheNumberColumnOffersRenumbering) {
    EXPECT_EQ(MenuOfColumn(MNUM), (Ids{ToRowNum, InSequence}));
    EXPECT_TRUE(CurrentGrid()->IsInSelection(0, MNUM));
    EXPECT_TRUE(CurrentGrid()->IsInSelection(122, MNUM));
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, SCAN));
}

TEST_F(ContextMenu, OfAnotherColumnOffersItsDefault) {
    for (int col : {SCAN, DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON}) {
        EXPECT_EQ(MenuOfColumn(col), Ids{DefaultCol}) << "column " << col;
        EXPECT_TRUE(CurrentGrid()->IsInSelection(0, col));
        EXPECT_TRUE(CurrentGrid()->IsInSelection(122, col));
    }
}

TEST_F(ContextMenu, OfAColumnOffersMarkedRowsOnlyWhileThereAreMarks) {
    CurrentParameters().Flags = 0x10;
    EXPECT_EQ(MenuOfColumn(DESC), (Ids{DefaultCol, DefaultMarked}));
    EXPECT_EQ(MenuOfColumn(MNUM), (Ids{ToRowNum, InSequence}));
    CurrentParameters().Flags = 0x0A;
    EXPECT_EQ(MenuOfColumn(DESC), Ids{DefaultCol});
}

TEST_F(ContextMenu, OfThePrimaryColumnIsNone) {
    // No page shows this column. It is shown here to provide a label to click on.
    CurrentGrid()->SetColSize(PRIM, 60);
    EXPECT_EQ(MenuOfColumn(PRIM), Ids{});
    EXPECT_FALSE(CurrentGrid()->IsInSelection(1, PRIM));
}

TEST_F(ContextMenu, OfTheCellsIsNone) {
    ContextRow = 17;
    Fill(3);
    for (int col : {MNUM, DESC, TCOD}) {
        EXPECT_EQ(MenuAt([col] { return CellSpot(*CurrentGrid(), 3, col); }), Ids{}) << "column " << col;
        EXPECT_EQ(MainFrame->m_contextMenu->GetMenuItemCount(), 0u);
    }
    EXPECT_EQ(ContextRow, 17);
}

TEST_F(ContextMenu, IsMadeAfreshForEachClick) {
    Fill(4);
    MenuOfRow(4);
    EXPECT_EQ(MenuOfColumn(DESC), Ids{DefaultCol});
    EXPECT_EQ(MenuOfRow(0), (Ids{LoadDefault, SaveDefault}));
    EXPECT_EQ(MenuAt([] { return CellSpot(*CurrentGrid(), 3, DESC); }), Ids{});
}

TEST_F(ContextMenu, OfAScrolledGridBelongsToTheRowThatWasClicked) {
    Retarget(Kdrv716B, 0);
    for (int row : {30, 57, 100, 250, 333, 499, 500, 501, 502, 480, 99, 3}) {
        MenuOfRow(row);
        EXPECT_EQ(ContextRow, row);
        EXPECT_TRUE(CurrentGrid()->IsInSelection(row, 0)) << "row " << row;
        CurrentGrid()->ClearSelection();
    }
}

// Intentional: otherwise another column, often out of sight, would be set to defaults.
TEST_F(ContextMenu, OfAGridScrolledSidewaysBelongsToTheColumnThatWasClicked_Departure) {
    Retarget(Kdrv716B, 0);
    wxGrid* grid = CurrentGrid();
    for (int col : {TIDC, TNAC, RFRQ, MNUM, TSQL}) {
        SCOPED_TRACE(col);
        grid->MakeCellVisible(0, TIDC);
        grid->MakeCellVisible(0, col);
        EXPECT_EQ(MenuOfColumn(col), col == MNUM ? (Ids{ToRowNum, InSequence}) : Ids{DefaultCol});
        for (int other = MNUM; other < 32; ++other)
            EXPECT_EQ(grid->IsInSelection(1, other), other == col) << "column " << other;
    }
    grid->MakeCellVisible(0, TIDC);
    ASSERT_GT(grid->CalcUnscrolledPosition(wxPoint(0, 0)).x, 0) << "the grid is scrolled";
}

TEST_F(ContextMenu, OfAGridScrolledSidewaysSetsTheDefaultsOfTheColumnThatWasClicked) {
    Retarget(Kdrv716B, 0);
    Fill(5);
    SetCell(5, RNAC, "ABC");
    SetCell(5, TNAC, "DEF");
    std::vector<std::string> expected = RowTexts(5);
    CurrentGrid()->MakeCellVisible(0, TIDC);
    ASSERT_GT(CurrentGrid()->CalcUnscrolledPosition(wxPoint(0, 0)).x, 0) << "the grid is scrolled";
    EXPECT_EQ(MenuOfColumn(TNAC), Ids{DefaultCol});
    DialogScript dialogs;
    dialogs.ExpectMessage("Change Selection to default?", AnyText(), wxID_OK);
    MainFrame->m_contextMenu->SendEvent(DefaultCol);
    expected[TNAC] = Cell(0, TNAC).utf8_string();
    EXPECT_EQ(RowTexts(5), expected);
}

TEST_F(ContextMenu, OfAGridScrolledSidewaysBelongsToTheRowThatWasClickedOrHasTheCursor) {
    Retarget(Kdrv716B, 0);
    Fill(250);
    CurrentGrid()->MakeCellVisible(250, TIDC);
    const Ids withData{DefaultRow, CreateShadow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow};
    EXPECT_EQ(MenuOfRow(250), withData);
    EXPECT_EQ(ContextRow, 250);
    ContextRow = 0;
    CurrentGrid()->ClearSelection();
    CurrentGrid()->GoToCell(250, TIDC);
    CurrentGrid()->SetFocus();
    PumpUntilIdle();
    EXPECT_EQ(MenuOf([](Robot& robot) { robot.Press("Menu"); }), withData);
    EXPECT_EQ(ContextRow, 250);
}

TEST_F(ContextMenu, OfARowWhoseFirstTextIsStillBeingTypedOffersWhatTheTakenTextAllows) {
    CurrentGrid()->GoToCell(5, DESC);
    CurrentGrid()->SetFocus();
    TypeText("quay");
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    EXPECT_EQ(MenuOfRow(5), (Ids{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow}));
    EXPECT_EQ(Cell(5, DESC), "QUAY");
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());

    CurrentGrid()->GoToCell(6, DESC);
    CurrentGrid()->SetFocus();
    TypeText("pier");
    EXPECT_EQ(MenuOf([](Robot& robot) {
                  robot.Click(robot.Ask([] { return RowLabelSpot(*CurrentGrid(), 5); }), 3);
              }),
              (Ids{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow}));
    EXPECT_EQ(Cell(6, DESC), "PIER") << "typed in another row than the one that was clicked";
}

TEST_F(ContextMenu, AtTheCellsOuterEdgeIsThatOfTheCorner) {
    const auto atEdge = [](const wxPoint& inCells) {
        return MenuOf([inCells](Robot& robot) {
            robot.Click(robot.Ask([inCells] { return SpotIn(*CurrentGrid()->GetGridWindow(), inCells); }), 3);
        });
    };
    EXPECT_EQ(atEdge({0, 60}), Ids{DefaultFile});
    EXPECT_EQ(atEdge({60, 0}), Ids{DefaultFile});
    EXPECT_EQ(atEdge({1, 90}), Ids{});
}

TEST_F(ContextMenu, BesideAllRowsAndColumnsIsNone) {
    Retarget(Orv12, 0);
    ContextRow = 3;
    EXPECT_EQ(MenuAt([] {
                  const wxSize room = CurrentGrid()->GetGridRowLabelWindow()->GetClientSize();
                  return SpotIn(*CurrentGrid()->GetGridRowLabelWindow(), {room.x / 2, room.y - 20});
              }),
              Ids{});
    EXPECT_EQ(MenuAt([] {
                  const wxSize room = CurrentGrid()->GetGridColLabelWindow()->GetClientSize();
                  return SpotIn(*CurrentGrid()->GetGridColLabelWindow(), {room.x - 20, room.y / 2});
              }),
              Ids{});
    EXPECT_EQ(ContextRow, 3);
    EXPECT_TRUE(CurrentGrid()->GetSelectedBlocks().begin() == CurrentGrid()->GetSelectedBlocks().end());
}

TEST_F(ContextMenu, AskedForWithTheKeyboardIsThatOfTheCursorsRow) {
    Fill(5);
    CurrentGrid()->ClearSelection();
    for (const char* key : {"Menu", "Shift+F10"}) {
        SCOPED_TRACE(key);
        CurrentGrid()->GoToCell(5, DESC);
        CurrentGrid()->SetFocus();
        PumpUntilIdle();
        EXPECT_EQ(MenuOf([key](Robot& robot) { robot.Press(key); }),
                  (Ids{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow}));
        EXPECT_EQ(ContextRow, 5);
        EXPECT_TRUE(CurrentGrid()->IsInSelection(5, 0));
        ContextRow = 0;
        CurrentGrid()->ClearSelection();
    }
}

TEST_F(ContextMenu, AskedForWithTheKeyboardInRow000OffersTheDefaultsCommands) {
    CurrentGrid()->GoToCell(0, DESC);
    CurrentGrid()->SetFocus();
    PumpUntilIdle();
    EXPECT_EQ(MenuOf([](Robot& robot) { robot.Press("Menu"); }), (Ids{LoadDefault, SaveDefault}));
}

TEST_F(ContextMenu, OfASecondPageWorksOnThatPage) {
    AddPage(Kdrv716);
    EXPECT_EQ(MenuOfRow(2), (Ids{DefaultRow, PasteRow, InsertRow, DeleteRow}));
    EXPECT_EQ(MenuOfRow(1),
              (Ids{DefaultRow, CreateShadow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow}));
}
