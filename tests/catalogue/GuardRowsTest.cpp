#include "tests/catalogue/PageTest.h"
#include "tests/catalogue/PrintedRadios.h"

namespace {

class GuardRows : public PageTest {
protected:
    static void FillRow(int row, const std::string& text) {
        for (int col = 0; col < 32; ++col)
            SetCell(row, col, text + std::to_string(col));
    }
};

} // namespace

TEST_F(GuardRows, StandWhereTheRowCountEndsInTwo) {
    struct Line {
        int rows;
        bool guards;
    };
    for (const Line& line : std::initializer_list<Line>{{6, false},
                                                        {100, false},
                                                        {200, false},
                                                        {500, false},
                                                        {102, true},
                                                        {122, true},
                                                        {202, true},
                                                        {232, true},
                                                        {502, true},
                                                        {0, false},
                                                        {220, false}}) {
        PageParameters[0].Rows = line.rows;
        EXPECT_EQ(HasGuardRows(0), line.guards) << line.rows;
        SetGuardRows(MainFrame, 0, line.rows);
        EXPECT_EQ(GD1, line.guards ? line.rows - 1 : -1) << line.rows;
        EXPECT_EQ(GD2, line.guards ? line.rows : -1) << line.rows;
    }
}

TEST_F(GuardRows, AreAskedForByPage) {
    PageParameters[1].Rows = 202;
    PageParameters[2].Rows = 200;
    EXPECT_TRUE(HasGuardRows(0));
    EXPECT_TRUE(HasGuardRows(1));
    EXPECT_FALSE(HasGuardRows(2));
}

TEST_F(GuardRows, AppearWhenTheKrv610ChangesFromFM403ToFM138) {
    Retarget(Krv610, 1);
    EXPECT_FALSE(HasGuardRows(0));
    EXPECT_EQ(GD1, -1);
    EXPECT_FALSE(IsGuardRow(200));
    Retarget(Krv610, 0);
    EXPECT_TRUE(HasGuardRows(0));
    EXPECT_EQ(GD1, 201);
    EXPECT_EQ(GD2, 202);
}

TEST_F(GuardRows, AreTheLastTwoRows) {
    for (const printed::Radio& radio : printed::Radios) {
        if (radio.slots[0].rows % 100 == 0 || radio.slots[0].rows == 6)
            continue;
        SCOPED_TRACE(radio.name);
        Retarget(radio.index, 0);
        const int rows = radio.slots[0].rows;
        EXPECT_FALSE(IsGuardRow(0));
        EXPECT_FALSE(IsGuardRow(1));
        EXPECT_FALSE(IsGuardRow(rows - 2));
        EXPECT_TRUE(IsGuardRow(rows - 1));
        EXPECT_TRUE(IsGuardRow(rows));
    }
}

TEST_F(GuardRows, AreNoneOnAPageWithoutThem) {
    Retarget(Kdar2000, 0);
    for (int row : {0, 1, 98, 99, 100})
        EXPECT_FALSE(IsGuardRow(row)) << row;
}

TEST_F(GuardRows, LockWhatTheRadioFixesOnAnalogPages) {
    for (const auto& [radio, slot] : std::initializer_list<std::pair<int, int>>{
             {Krv21, 0}, {Krv214, 0}, {Krv610, 0}, {Krv630, 1}, {Krv630Qnt, 0}}) {
        Retarget(radio, slot);
        const wxGrid* grid = CurrentGrid();
        for (int col : {MNUM, SCAN, RTON, RCOD}) {
            SCOPED_TRACE("radio " + std::to_string(radio) + " column " + std::to_string(col));
            EXPECT_TRUE(grid->IsReadOnly(GD1, col));
            EXPECT_TRUE(grid->IsReadOnly(GD2, col));
            EXPECT_FALSE(grid->IsReadOnly(GD1 - 1, col));
        }
        for (int col : {DESC, MODE, RFRQ, TFRQ, TTON, TCOD}) {
            EXPECT_FALSE(grid->IsReadOnly(GD1, col)) << "radio " << radio << " column " << col;
            EXPECT_FALSE(grid->IsReadOnly(GD2, col)) << "radio " << radio << " column " << col;
        }
    }
}

TEST_F(GuardRows, LockNumberScanAndZoneOnP25Pages) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        AddPage(radio, 0);
        const wxGrid* grid = CurrentGrid();
        for (int col : {MNUM, SCAN, ZONE}) {
            SCOPED_TRACE("radio " + std::to_string(radio) + " column " + std::to_string(col));
            EXPECT_TRUE(grid->IsReadOnly(GD1, col));
            EXPECT_TRUE(grid->IsReadOnly(GD2, col));
            EXPECT_FALSE(grid->IsReadOnly(GD1 - 1, col));
        }
        for (int col : {DESC, RFRQ, RTON, RCOD}) {
            EXPECT_FALSE(grid->IsReadOnly(GD1, col)) << "radio " << radio << " column " << col;
            EXPECT_FALSE(grid->IsReadOnly(GD2, col)) << "radio " << radio << " column " << col;
        }
    }
}

TEST_F(GuardRows, ComeBackCellByCellAsTheyWereSaved) {
    FillRow(121, "a");
    FillRow(122, "b");
    const auto first = RowTexts(121), second = RowTexts(122);
    SaveGuardRows(MainFrame);
    FillRow(121, "x");
    FillRow(122, "y");
    RestoreGuardRows(MainFrame, false);
    EXPECT_EQ(RowTexts(121), first);
    EXPECT_EQ(RowTexts(122), second);
    EXPECT_TRUE(FilledRows() == (std::vector<int>{121, 122})) << "no other row was written";
}

TEST_F(GuardRows, ComeBackAtTheGuardRowsOfANewTargetWithTheirNumbers) {
    FillRow(121, "a");
    FillRow(122, "b");
    SaveGuardRows(MainFrame);
    Retarget(Krv610, 0);
    RestoreGuardRows(MainFrame, true);
    EXPECT_EQ(Cell(201, MNUM), "201");
    EXPECT_EQ(Cell(202, MNUM), "202");
    EXPECT_EQ(Cell(201, DESC), "a7");
    EXPECT_EQ(Cell(202, TFLG), "b31");
    EXPECT_EQ(Cell(121, DESC), "");
}

TEST_F(GuardRows, KeepTheirOldNumbersWhenTheyAreNotRenumbered) {
    SetCell(121, MNUM, "007");
    SaveGuardRows(MainFrame);
    SetCell(121, MNUM, "");
    RestoreGuardRows(MainFrame, false);
    EXPECT_EQ(Cell(121, MNUM), "007");
}

TEST_F(GuardRows, ComeBackBlankWhenTheyWereBlank) {
    SaveGuardRows(MainFrame);
    FillRow(121, "x");
    RestoreGuardRows(MainFrame, false);
    EXPECT_TRUE(FilledRows().empty());
}
