// Open lists that lose the keyboard, which a program can take from a list of that system only.
#include "tests/editing/CellTools.h"

using namespace testbench;

namespace {

class ListCellsLosingTheKeyboard : public CellTest {
protected:
    /// Opens the list of a cell, moves in it, and leaves it without a choice.
    static void LookInto(int row, int col) {
        const wxComboBox* control = OpenChoice(row, col);
        PressKey("Alt+Down");
        PressKey("Down");
        const int shown = control->GetCurrentSelection();
        EXPECT_NE(shown, wxNOT_FOUND);
        Grid()->SetFocus();
        EXPECT_TRUE(PumpUntil([] { return !Grid()->IsCellEditControlShown(); }));
    }
};

} // namespace

TEST_F(ListCellsLosingTheKeyboard, TakeNothingAlsoAfterArrowKeys) {
    LookInto(9, RTON);
    EXPECT_FALSE(RowHasData(9));
    Fill({5});
    SetCell(5, RTON, "156.7");
    LookInto(5, RTON);
    EXPECT_EQ(Text(5, RTON), "156.7");
}
