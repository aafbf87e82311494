// Copying, the menu key, column widths and rows of a page, with real keys and mouse.
#include "tests/editing/GridHabits.h"

#include "robot/Desk.h"
#include "tests/editing/CopiedText.h"
#include "tests/support/RunWithRobot.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/menu.h>
#include <wx/textfile.h>

using namespace testbench;

namespace {

class GridCopy : public GridHabits {
protected:
    static void PutOnClipboard(const std::string& text) {
        const wxClipboardLocker lock;
        ASSERT_TRUE(!!lock);
        ASSERT_TRUE(wxTheClipboard->SetData(new wxTextDataObject(text)));
    }

    /// The text that Ctrl+C puts on the clipboard.
    static std::string Copied() {
        PressKey("Ctrl+C");
        return TextOnClipboard();
    }

    /// Joins lines with the toolkit's line end for this system, after the last one too.
    static std::string Lines(const Texts& lines) {
        std::string text;
        for (const std::string& line : lines)
            text += line + wxString(wxTextFile::GetEOL()).utf8_string();
        return text;
    }
};

class GridMouse : public GridHabits {
protected:
    static std::vector<int> Widths() {
        std::vector<int> widths;
        for (int col = 0; col < ColumnTotal; ++col)
            widths.push_back(Grid()->GetColSize(col));
        return widths;
    }

    static std::vector<int> Heights() {
        std::vector<int> heights;
        for (int row = 0; row < Grid()->GetNumberRows(); ++row)
            heights.push_back(Grid()->GetRowSize(row));
        return heights;
    }

    static std::string HiddenOnesOpened(const std::vector<int>& before) {
        std::string opened;
        for (int col = 0; col < ColumnTotal; ++col)
            if (before[static_cast<size_t>(col)] == 0 && Grid()->GetColSize(col) != 0)
                opened += std::string(ColumnTag[col]) + " ";
        return opened;
    }

    static void Restore(const std::vector<int>& widths) {
        for (int col = 0; col < ColumnTotal; ++col)
            if (Grid()->GetColSize(col) != widths[static_cast<size_t>(col)])
                Grid()->SetColSize(col, widths[static_cast<size_t>(col)]);
        PumpUntilIdle();
    }

    /// Drags each border between columns, just before and just after it, where hidden columns are.
    static void DragAllEdges(int radio) {
        Retarget(radio, 0);
        MainFrame->SetSize(0, 0, 1270, 700);
        PumpFor(200);
        const auto before = Widths();
        int shown = 0, widened = 0;
        for (int col = 0; col < ColumnTotal; ++col) {
            if (before[static_cast<size_t>(col)] == 0)
                continue;
            ++shown;
            for (int side : {-1, 1}) {
                // Two presses near each other would be a double click.
                const wxPoint edge = EdgeOf(col) + wxPoint(side, 4 * side);
                DragFrom(edge, edge + wxPoint(25, 0));
                EXPECT_EQ(HiddenOnesOpened(before), "") << "after " << ColumnTag[col] << ", " << side;
                widened += Grid()->GetColSize(col) > before[static_cast<size_t>(col)];
                Restore(before);
            }
        }
        const wxPoint left = EdgeOf(MNUM) - wxPoint(Grid()->GetColSize(MNUM), 0);
        for (int side : {0, 1}) {
            DragFrom(left + wxPoint(side, 8 * side), left + wxPoint(40, 0));
            EXPECT_EQ(HiddenOnesOpened(before), "") << "before the first column";
        }
        EXPECT_EQ(widened, 2 * shown - 1) << "each border is dragged from both sides, except the last one";
    }

    /// The first pixel after a shown column, in the middle of the labels.
    static wxPoint EdgeOf(int col) {
        const int y = ColumnLabelSpot(*Grid(), col).y;
        const wxRect cell = Grid()->CellToRect(0, col);
        const wxPoint edge = Grid()->CalcScrolledPosition(wxPoint(cell.x + Grid()->GetColSize(col), 0));
        return {Grid()->GetGridWindow()->ClientToScreen(edge).x, y};
    }

    static bool MenuIsOpen() { return MainFrame->m_contextMenu->GetInvokingWindow() != nullptr; }

    static void CloseMenu(Robot& robot) {
        for (int tries = 0; tries < 20 && robot.Ask(MenuIsOpen); ++tries) {
            robot.Press("Escape");
            robot.WaitFor([] { return !MenuIsOpen(); }, 200);
        }
    }

    /// The area in which two pictures of the screen differ, from line fromY down.
    static wxRect Difference(const wxImage& a, const wxImage& b, int fromY) {
        wxRect found;
        for (int y = fromY; y < a.GetHeight(); ++y)
            for (int x = 0; x < a.GetWidth(); ++x)
                if (a.GetRed(x, y) != b.GetRed(x, y) || a.GetGreen(x, y) != b.GetGreen(x, y) ||
                    a.GetBlue(x, y) != b.GetBlue(x, y))
                    found = found.Union({x, y, 1, 1});
        return found;
    }
};

constexpr int DefaultRow = 6024, CopyRow = 6026, PasteRow = 6027, ClearRow = 6028, InsertRow = 6029,
              DeleteRow = 6030, MarkRow = 6031;

} // namespace

TEST_F(GridCopy, OfOneCellIsItsTextAndALineEnd) {
    Fill({5});
    SetCell(5, DESC, "HARBOUR 5");
    GoTo(5, DESC);
    PutOnClipboard("before");
    EXPECT_EQ(Copied(), Lines({"HARBOUR 5"}));
    GoTo(5, RFRQ);
    EXPECT_EQ(Copied(), Lines({"66.0000"}));
    GoTo(7, DESC);
    EXPECT_EQ(Copied(), Lines({""})) << "a blank cell";
}

TEST_F(GridCopy, OfABlockHasTabsBetweenColumnsAndALineForEachRow) {
    Fill({5, 6, 7});
    SetCell(6, MODE, "N");
    GoTo(5, DESC);
    for (const char* key : {"Shift+Right", "Shift+Right", "Shift+Down"})
        PressKey(key);
    EXPECT_EQ(Copied(), Lines({"LOW   005\tW\t66.0000", "LOW   006\tN\t66.0000"}));
}

TEST_F(GridCopy, OfRowsHoldsTheirShownCellsAsTheyAreSeen) {
    Fill({5, 6});
    SetCells(6, {{RFRQ, "77.5000"}, {MNUM, "6"}, {SCAN, "3"}});
    ClickAt(RowLabelSpot(*Grid(), 5));
    const std::string row5 = "005\t☐☐☐☐☐\tLOW   005\tW\t66.0000\tOFF\tOFF\t88.0000\tOFF\tOFF";
    const std::string row6 = "006\t☒☒☐☐☐\tLOW   006\tW\t77.5000\tOFF\tOFF\t88.0000\tOFF\tOFF";
    EXPECT_EQ(Copied(), Lines({row5}));
    PressKey("Shift+Down");
    EXPECT_EQ(Copied(), Lines({row5, row6}));
}

TEST_F(GridCopy, OfABlockLeavesTheHiddenColumnsInItOut) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    Grid()->SelectBlock(5, MNUM, 5, RNSV);
    EXPECT_EQ(Copied(), Lines({"005\tN\tN\t1\tVHF  005\tn\t136.0000\tx\t10"}));
}

TEST_F(GridCopy, OfCellsThatAreApartKeepsTheirPlaces) {
    Fill({5, 6, 7});
    Grid()->SelectBlock(5, MODE, 5, MODE);
    Grid()->SelectBlock(7, RFRQ, 7, RFRQ, true);
    EXPECT_EQ(Copied(), Lines({"W\t", "\t66.0000"}));
}

TEST_F(GridCopy, WithAnOpenEditorIsItsSelectedText) {
    Fill({5});
    GoTo(5, DESC);
    TypeText("abc");
    PressKey("Ctrl+A");
    EXPECT_EQ(Copied(), "ABC");
    PressKey("Escape");
}

TEST_F(GridCopy, ChangesNothingOnThePageNorDoOtherKeysOfSpreadsheets) {
    Fill({5, 6});
    const PageState before = StateOfPage();
    for (int col : {MNUM, SCAN, DESC, MODE, RFRQ, RTON}) {
        GoTo(5, col);
        PressKey("Ctrl+C");
        for (const char* key : {"Ctrl+X", "Ctrl+D", "Ctrl+Z"}) {
            GoTo(6, col);
            PressKey(key);
            EXPECT_FALSE(IsOpen()) << ColumnTag[col] << ", " << key;
        }
    }
    EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(GridMouse, MenuKeyOpensTheRowMenuBelowTheCursor) {
    Fill({5, 90});
    for (const char* key : {"Menu", "Shift+F10"})
        for (const auto& [row, col] : {Place(5, DESC), Place(90, RTON)}) {
            SCOPED_TRACE(std::string(key) + " in row " + std::to_string(row));
            Grid()->ClearSelection();
            GoTo(row, col);
            PumpFor(100);
            const wxRect cell = Grid()->CellToRect(row, col);
            const wxPoint corner =
                Grid()->GetGridWindow()->ClientToScreen(Grid()->CalcScrolledPosition(cell.GetBottomLeft()));
            std::vector<int> ids;
            wxRect menu;
            ContextRow = 0;
            RunWithRobot([&](Robot& robot) {
                Desk desk;
                const wxImage before = desk.Picture({});
                robot.Press(key);
                ASSERT_TRUE(robot.WaitFor(MenuIsOpen)) << "no menu";
                robot.Settle();
                ids = robot.Ask([] {
                    std::vector<int> shown;
                    for (const wxMenuItem* item : MainFrame->m_contextMenu->GetMenuItems())
                        shown.push_back(item->GetId());
                    return shown;
                });
                // The menu is drawn when it comes up; no event of the grid reports this.
                for (int tries = 0; tries < 20 && menu.GetHeight() < 40; ++tries) {
                    robot.WaitFor([] { return false; }, 50);
                    menu = Difference(before, desk.Picture({}), corner.y + 2);
                }
                CloseMenu(robot);
            });
            EXPECT_EQ(ids, (std::vector<int>{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow,
                                             DeleteRow}));
            EXPECT_EQ(ContextRow, row);
            EXPECT_NEAR(corner.x, menu.x, 6);
            EXPECT_NEAR(corner.y, menu.y, 6);
        }
}

TEST_F(GridMouse, MenuKeyWithAnOpenEditorTakesNothingAway) {
    Fill({5});
    GoTo(5, DESC);
    TypeText("abc");
    RunWithRobot([](Robot& robot) {
        robot.Press("Menu");
        robot.Settle();
        robot.Press("Escape");
        robot.Settle();
    });
    PressKey("Return");
    EXPECT_EQ(Text(5, DESC), "ABC");
}

TEST_F(GridMouse, MenuKeyAfterSelectingThePageIsStillThatOfTheRow) {
    Fill({5});
    GoTo(5, DESC);
    PressKey("Ctrl+A");
    std::vector<int> ids;
    RunWithRobot([&](Robot& robot) {
        robot.Press("Menu");
        ASSERT_TRUE(robot.WaitFor(MenuIsOpen)) << "no menu";
        ids = robot.Ask([] {
            std::vector<int> shown;
            for (const wxMenuItem* item : MainFrame->m_contextMenu->GetMenuItems())
                shown.push_back(item->GetId());
            return shown;
        });
        CloseMenu(robot);
    });
    EXPECT_EQ(ids,
              (std::vector<int>{DefaultRow, CopyRow, PasteRow, ClearRow, MarkRow, InsertRow, DeleteRow}));
}

TEST_F(GridMouse, ADraggedLabelEdgeWidensItsColumn) {
    for (int radio : {Krv47, Kdrv716B, Kdar2000}) {
        Retarget(radio, 0);
        for (int col : {MNUM, DESC, RFRQ}) {
            const auto before = Widths();
            const wxPoint edge = EdgeOf(col) - wxPoint(1, 0);
            DragFrom(edge, edge + wxPoint(30, 0));
            auto expected = before;
            expected[static_cast<size_t>(col)] += 30;
            const auto after = Widths();
            EXPECT_NEAR(expected[static_cast<size_t>(col)], after[static_cast<size_t>(col)], 3)
                << radio << ", " << ColumnTag[col];
            expected[static_cast<size_t>(col)] = after[static_cast<size_t>(col)];
            EXPECT_EQ(after, expected) << "another column of radio " << radio;
        }
    }
}

TEST_F(GridMouse, ALabelEdgeDraggedToTheLeftLeavesTheColumnItsWidth) {
    const auto before = Widths();
    for (int col : {MNUM, DESC, TCOD}) {
        const wxPoint edge = EdgeOf(col) - wxPoint(1, 0);
        DragFrom(edge, edge - wxPoint(35, 0));
        EXPECT_EQ(Widths(), before) << ColumnTag[col];
    }
}

TEST_F(GridMouse, NoLabelEdgeOpensAHiddenColumnOnAnAnalogPage) {
    DragAllEdges(Krv47);
}

TEST_F(GridMouse, NoLabelEdgeOpensAHiddenColumnOnAP25Page) {
    DragAllEdges(Kdrv716B);
}

TEST_F(GridMouse, NoLabelEdgeOpensAHiddenColumnOnAnAirbandPage) {
    DragAllEdges(Kdar2000);
}

TEST_F(GridMouse, ADoubleClickOnALabelEdgeOpensNoHiddenColumn) {
    for (int radio : {Krv47, Kdrv716B, Kdar2000}) {
        Retarget(radio, 0);
        MainFrame->SetSize(0, 0, 1270, 700);
        PumpFor(200);
        const auto before = Widths();
        for (int col = 0; col < ColumnTotal; ++col)
            if (before[static_cast<size_t>(col)] > 0)
                for (int side : {-2, 2}) {
                    const wxPoint edge = EdgeOf(col) + wxPoint(side, 0);
                    DoubleClickAt(edge);
                    EXPECT_EQ(HiddenOnesOpened(before), "")
                        << "radio " << radio << ", after " << ColumnTag[col] << ", " << side;
                }
    }
}

TEST_F(GridMouse, RowsAndColumnsCannotBeDraggedAway) {
    Fill({2, 3, 4});
    const PageState before = StateOfPage();
    const auto heights = Heights();
    const wxPoint row = RowLabelSpot(*Grid(), 3);
    // From the middle of the label, and from its lower edge at both sides.
    for (int dy : {0, 10, 12})
        DragFrom(row + wxPoint(0, dy), row + wxPoint(0, 120));
    const wxPoint column = ColumnLabelSpot(*Grid(), DESC);
    DragFrom(column, column + wxPoint(150, 0));
    DragFrom(column + wxPoint(0, 11), column + wxPoint(0, 60));
    const wxPoint cell = CellSpot(*Grid(), 3, DESC);
    DragFrom(cell, cell + wxPoint(0, 70));
    DragFrom(cell + wxPoint(0, 11), cell + wxPoint(0, 70));
    EXPECT_EQ(Heights(), heights);
    EXPECT_EQ(ChangesSince(before), "");
    for (int col = 0; col < ColumnTotal; ++col)
        EXPECT_EQ(Grid()->GetColPos(col), col);
    EXPECT_EQ(Grid()->GetRowLabelValue(3).utf8_string(), "003");
}
