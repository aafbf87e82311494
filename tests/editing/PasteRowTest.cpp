#include "tests/editing/CommandTest.h"

namespace {

class PasteRowCommand : public CommandTest {
protected:
    /// Copies one row and pastes it into another.
    static void CopyTo(int from, int to) {
        RunOnRow(CopyRow, from);
        RunOnRow(PasteRow, to);
    }

    /// Makes the number of the pasted row unique, so that no check complains.
    static void CopyToWithNumber(int from, int to) {
        RunOnRow(CopyRow, from);
        RowCopyBuffer[MNUM] = wxString::Format("%d", to);
        RunOnRow(PasteRow, to);
    }
};

} // namespace

TEST_F(PasteRowCommand, WithoutACopyTellsThatThereIsNone) {
    Fill({3});
    const Texts before = RowTexts(3);
    ContextRow = 3;
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, PasteRow);
    dialogs.ExpectMessage("Error - Empty paste buffer!", "Cannot paste empty row.")
        .Style(testbench::PlainBox);
    MainFrame->m_contextMenu->SendEvent(PasteRow);
    EXPECT_EQ(RowTexts(3), before);
}

TEST_F(PasteRowCommand, WritesColumns0To29AndKeepsTheTransferFlags) {
    Fill({3, 5});
    SetCell(3, RFRQ, "70.0000");
    SetCell(3, TFLG, "A1");
    SetCell(5, TFLG, "C0");
    CopyToWithNumber(3, 5);
    Texts expected = RowTexts(3);
    expected[MNUM] = "005";
    expected[BAND] = "";
    expected[DESC] = "ROW3";
    expected[TFLG] = "C0";
    EXPECT_EQ(RowTexts(5), expected);
}

// A departure: with an empty number the pasted row would not be saved.
TEST_F(PasteRowCommand, GivesTheRowItsOwnNumberForOneThatIsInUse_Departure) {
    Fill({3});
    CopyTo(3, 5);
    EXPECT_EQ(Cell(5, MNUM), "005");
    EXPECT_EQ(Cell(5, RFRQ), Cell(3, RFRQ));
    CopyTo(5, 5);
    EXPECT_EQ(Cell(5, MNUM), "005") << "no other row's";
}

TEST_F(PasteRowCommand, GivesTheRowItsOwnNumberForOneAboveTheRows_Departure) {
    Fill({3});
    RunOnRow(CopyRow, 3);
    RowCopyBuffer[MNUM] = "500";
    RunOnRow(PasteRow, 5);
    EXPECT_EQ(Cell(5, MNUM), "005");
}

TEST_F(PasteRowCommand, LosesANumberThatIsInUseWhereItsOwnIsTooAndTellsIt) {
    Fill({3, 9});
    SetCell(9, MNUM, "005");
    RunOnRow(CopyRow, 3);
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, PasteRow);
    dialogs.ExpectMessage("Error", "Number already used at row: 003");
    ContextRow = 5;
    MainFrame->m_contextMenu->SendEvent(PasteRow);
    EXPECT_EQ(Cell(5, MNUM), "");
    EXPECT_EQ(Cell(5, RFRQ), Cell(3, RFRQ));
}

// A departure: without these cells the row would be incomplete and would not be saved.
TEST_F(PasteRowCommand, FromAnotherTypeFillsWhatThatTypeHasNoColumnFor_Departure) {
    Retarget(Kdrv716, 0);
    Fill({10});
    RunOnRow(CopyRow, 10);
    testbench::AddPage(Kdrv716B);
    RunOnRow(PasteRow, 10);
    EXPECT_EQ(Cell(10, RNSV), "10");
    EXPECT_EQ(Paint(10, RNSV), Orange());
    EXPECT_TRUE(RowIsComplete(10));
    testbench::AddPage(Kdar2000);
    RunOnRow(PasteRow, 10);
    EXPECT_EQ(Cell(10, RONL), "N");
    EXPECT_EQ(Paint(10, RONL), Orange());
    EXPECT_TRUE(RowIsComplete(10));
    RowCopyBuffer[DESC] = "";
    RowCopyBuffer[SCAN] = "";
    RunOnRow(PasteRow, 10);
    EXPECT_EQ(Cell(10, DESC), "VHFAM118");
    EXPECT_EQ(Cell(10, SCAN), "N");
    EXPECT_EQ(Paint(10, DESC), Orange());
    EXPECT_TRUE(RowIsComplete(10));
}

TEST_F(PasteRowCommand, PastesOneRowWhateverIsSelected) {
    Fill({3});
    RunOnRow(CopyRow, 3);
    RowCopyBuffer[MNUM] = "005";
    SelectRows({5, 6, 7});
    ContextRow = 5;
    Run(PasteRow);
    EXPECT_EQ(FilledRows(), (std::vector<int>{3, 5}));
}

TEST_F(PasteRowCommand, OfZoneXLocksScanAndAPasteOfAnotherZoneMakesItWritableAgain) {
    Retarget(Kdrv716B, 0);
    Fill({3, 4, 5, 6});
    SetCell(3, ZONE, "X");
    SetPageEditors(0);
    SetCell(5, TFLG, "A0"); // the paste must assign its zone again
    CopyToWithNumber(3, 5);
    ASSERT_EQ(Cell(5, ZONE), "X");
    EXPECT_TRUE(IsReadOnly(5, SCAN));
    SetCell(5, TFLG, "A0");
    CopyToWithNumber(4, 5);
    ASSERT_EQ(Cell(5, ZONE), "1");
    EXPECT_FALSE(IsReadOnly(5, SCAN));
    CopyToWithNumber(4, 501);
    EXPECT_TRUE(IsReadOnly(501, SCAN)) << "a guard row's stays locked";
}

TEST_F(PasteRowCommand, IntoABlankRowMakesItAMemory) {
    Fill({3});
    CopyToWithNumber(3, 5);
    EXPECT_EQ(Cell(5, TFLG), "A0");
    EXPECT_EQ(Cell(5, RONL), "");
    Retarget(Kdar2000, 0);
    Fill({3});
    SetCell(0, RONL, "Y");
    CopyToWithNumber(3, 5);
    EXPECT_EQ(Cell(5, TFLG), "A0");
    EXPECT_EQ(Cell(5, RONL), "Y");
    SetCell(5, RONL, "N");
    CopyToWithNumber(3, 5);
    EXPECT_EQ(Cell(5, RONL), "N") << "a row with data keeps it";
}

TEST_F(PasteRowCommand, ChecksTheRow) {
    Fill({3});
    RunOnRow(CopyRow, 3);
    RowCopyBuffer[MNUM] = "5";
    RowCopyBuffer[RFRQ] = "999.0000";
    RunOnRow(PasteRow, 5);
    EXPECT_EQ(Cell(5, MNUM), "005");
    EXPECT_EQ(Cell(5, RFRQ), "66.0000");
    EXPECT_EQ(Paint(5, RFRQ), Orange());
}

TEST_F(PasteRowCommand, OfACopiedPrimaryKeepsItsFlagButNoLinks) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11, 12});
    CopyToWithNumber(10, 20);
    EXPECT_EQ(Cell(20, SHAD), "N");
    for (int col = SHD0; col <= SHD6; ++col)
        EXPECT_EQ(Cell(20, col), "0") << col;
    ExpectCells(20, {{MFLG, "10"}, {PRIM, "020"}, {ZONE, "1"}, {TFLG, "A8"}});
}

TEST_F(PasteRowCommand, OfACopiedShadowKeepsItsIndex) {
    Retarget(Kdrv716, 0);
    Fill({10});
    Link(10, {11, 12});
    CopyToWithNumber(12, 20);
    EXPECT_EQ(Cell(20, MFLG), "02");
    EXPECT_EQ(Cell(20, SHAD), "N");
    EXPECT_EQ(Cell(20, ZONE), "");
}

TEST_F(PasteRowCommand, LeavesTheLinksOfTheFormerRow) {
    Retarget(Kdrv716, 0);
    Fill({10, 20});
    Link(10, {11});
    CopyToWithNumber(20, 10);
    EXPECT_EQ(Cell(10, DESC), "row20");
    EXPECT_EQ(Cell(11, SHAD), "S-010");
}

TEST_F(PasteRowCommand, WorksOnAnotherPageAndItsTypeIsChecked) {
    Retarget(Kdrv716, 0);
    Fill({10});
    RunOnRow(CopyRow, 10);
    testbench::AddPage(Krv47);
    RunOnRow(PasteRow, 10);
    ExpectCells(10, {{MNUM, "010"}, {SHAD, ""}, {ZONE, ""}, {MODE, "N"}, {RFRQ, "66.0000"}, {RTGP, ""}});
}

TEST_F(PasteRowCommand, NeverTouchesTheDefaultRow) {
    Fill({3});
    RunOnRow(CopyRow, 3);
    const Texts before = RowTexts(0);
    ContextRow = 0;
    MainFrame->m_contextMenu->SendEvent(PasteRow);
    EXPECT_EQ(RowTexts(0), before);
}

TEST_F(PasteRowCommand, FromTheMenuPastesIntoTheRowThatWasClicked) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({3});
    RunOnRow(CopyRow, 3);
    RowCopyBuffer[MNUM] = "006";
    testbench::DialogScript dialogs;
    ExpectQuestion(dialogs, PasteRow);
    ClickRowCommand(6, PasteRow);
    EXPECT_EQ(FilledRows(), (std::vector<int>{3, 6}));
}
