// The commands "select all" and "de-select all" of the Data menu.
#include "tests/editing/CommandTest.h"

namespace {

class SelectionCommands : public CommandTest {
protected:
    static constexpr int All = 6014, None = 6015;

    static int SelectedCells(int page) {
        int count = 0;
        for (int row = 0; row < PageGrid[page]->GetNumberRows(); ++row)
            for (int col = 0; col < 32; ++col)
                count += PageGrid[page]->IsInSelection(row, col);
        return count;
    }
};

} // namespace

TEST_F(SelectionCommands, SelectEveryCellAndNone) {
    for (int radio : {Krv47, Kdar2000, Kdrv716}) {
        Retarget(radio, 0);
        SelectRows({3});
        testbench::RunCommand(All);
        EXPECT_EQ(SelectedCells(0), (CurrentParameters().Rows + 1) * 32) << "radio " << radio;
        testbench::RunCommand(None);
        EXPECT_EQ(SelectedCells(0), 0) << "radio " << radio;
        testbench::RunCommand(None);
        EXPECT_EQ(SelectedCells(0), 0) << "radio " << radio;
    }
}

TEST_F(SelectionCommands, WorkOnTheCurrentPage) {
    testbench::AddPage(Kdrv716);
    testbench::RunCommand(All);
    EXPECT_EQ(SelectedCells(1), 233 * 32);
    EXPECT_EQ(SelectedCells(0), 0);
    PageGrid[0]->SelectRow(5);
    testbench::RunCommand(None);
    EXPECT_EQ(SelectedCells(1), 0);
    EXPECT_EQ(SelectedCells(0), 32);
}

TEST_F(SelectionCommands, ChangeNoCell) {
    Fill({3});
    const Texts before = RowTexts(3), defaults = RowTexts(0);
    testbench::RunCommand(All);
    testbench::RunCommand(None);
    EXPECT_EQ(RowTexts(3), before);
    EXPECT_EQ(RowTexts(0), defaults);
    EXPECT_EQ(FilledRows(), std::vector<int>{3});
}
