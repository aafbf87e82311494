#include "editing/PageReset.h"

#include "tests/files/ChannelFileTest.h"

namespace {

class PageReset : public ChannelFileTest {};

} // namespace

TEST_F(PageReset, LeavesAnAnalogPageWithItsDefaultRowAlone) {
    RetargetTo("ANFM");
    SetCell(0, DESC, "OTHER");
    SetCell(7, DESC, "OLD");
    SetCell(102, TFLG, "A0");
    ResetPage(0);
    EXPECT_EQ(FilledRows(0), std::vector<int>{0});
    EXPECT_EQ(Text(0, DESC), "VHF   138");
}

TEST_F(PageReset, FillsTheStartingRowsOfAP25PageAndGivesAllSlotsBack) {
    RetargetTo("RP25");
    FillRowsFromDefault({5, 6, 7});
    ResetPage(0);
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 1, 231, 232}));
    EXPECT_EQ(TakenSlots(), 0);
}

TEST_F(PageReset, ZeroesTheFlagsOfThePage) {
    CurrentParameters().Flags = PageFromFile | PageHasShadows | PageHasMarks;
    ResetPage(0);
    EXPECT_EQ(CurrentParameters().Flags, 0);
}

TEST_F(PageReset, TakesLocksAndPaintOfFormerRowsAway) {
    RetargetTo("MDLX");
    wxGrid* grid = CurrentGrid();
    for (int col : {MODE, RTON, RCOD, TTON, TCOD}) {
        grid->SetReadOnly(40, col);
        grid->SetCellBackgroundColour(40, col, FailColour);
    }
    grid->SetCellBackgroundColour(41, RFRQ, MarkColour);
    ResetPage(0);
    for (int col : {MODE, RTON, RCOD, TTON, TCOD}) {
        EXPECT_FALSE(grid->IsReadOnly(40, col)) << ColumnTag[col];
        EXPECT_EQ(grid->GetCellBackgroundColour(40, col), grid->GetDefaultCellBackgroundColour())
            << ColumnTag[col];
    }
    EXPECT_EQ(grid->GetCellBackgroundColour(41, RFRQ), grid->GetDefaultCellBackgroundColour());
}

TEST_F(PageReset, KeepsTheLocksThatThePageNeeds) {
    RetargetTo("ANFM");
    ResetPage(0);
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
    for (int col : {MNUM, SCAN, RTON, RCOD})
        EXPECT_TRUE(CurrentGrid()->IsReadOnly(102, col)) << ColumnTag[col];
    RetargetTo("RP25");
    CurrentGrid()->SetReadOnly(50, SHAD);
    CurrentGrid()->SetReadOnly(50, SCAN);
    ResetPage(0);
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(50, SHAD)) << "no one types into that column";
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(50, SCAN));
    for (int col : {MNUM, SCAN, ZONE})
        EXPECT_TRUE(CurrentGrid()->IsReadOnly(231, col)) << ColumnTag[col];
}

TEST_F(PageReset, LetsNoRowOfASelectionBeFilled) {
    RetargetTo("RP25");
    CurrentGrid()->SelectRow(50);
    ResetPage(0);
    EXPECT_FALSE(RowHasData(50));
}

TEST_F(PageReset, CanBeFollowedByEmptyingTheStartingRows) {
    RetargetTo("NP25");
    EXPECT_EQ(TakenSlots(), 3);
    EmptyDefaultMemories(0);
    EXPECT_EQ(FilledRows(0), std::vector<int>{0});
    EXPECT_EQ(TakenSlots(), 0);
    RetargetTo("ANFM");
    SetCell(1, DESC, "KEPT");
    EmptyDefaultMemories(0);
    EXPECT_EQ(Text(1, DESC), "KEPT") << "only a P25 page has filled rows";
}
