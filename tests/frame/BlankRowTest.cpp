// A blank row becomes a memory as soon as the user types into it.
#include "commands/OpenEditor.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/ZelkWindowTest.h"

using namespace testbench;

namespace {

class TypingInto : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    using Texts = std::vector<std::string>;

    static std::vector<int> SelectedRows() {
        std::vector<int> rows;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            if (CurrentGrid()->IsInSelection(row, MNUM))
                rows.push_back(row);
        return rows;
    }
};

} // namespace

TEST_F(TypingInto, ABlankRowFillsItFromTheDefaultRow) {
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "70.0000");
    const Texts expected = {"",    "005", "", "", "FM 66-88", "0", "",    "LOW   005", "W", "70.0000", "", "",
                            "OFF", "OFF", "", "", "70.0000",  "",  "OFF", "OFF",       "",  "",        "", "",
                            "",    "",    "", "", "",         "",  "",    "A0"};
    EXPECT_EQ(RowTexts(5), expected);
    EXPECT_EQ(FilledRows(), std::vector<int>{5});
}

TEST_F(TypingInto, TheDescriptionOfABlankRowKeepsWhatWasTyped) {
    TypeIntoCell(*CurrentGrid(), 7, DESC, "ALPHA");
    EXPECT_EQ(Cell(7, DESC), "ALPHA");
    EXPECT_EQ(Cell(7, MNUM), "007");
    EXPECT_EQ(Cell(7, RFRQ), "66.0000");
    EXPECT_EQ(Cell(7, TFLG), "A0");
}

TEST_F(TypingInto, ABlankP25RowGivesItAZoneAndItsOwnPrimary) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        SCOPED_TRACE(radio);
        Retarget(radio, 0);
        TypeIntoCell(*CurrentGrid(), 2, RFRQ, "150.0000");
        // Second generation radios tune in finer steps.
        const char* const typed = radio == Kdrv716 ? "150.0000" : "150.00000";
        const Texts expected = {"0",    "002",      "002",  "N",   "FM 136-174", "N",
                                "1",    "VHF  002", "n",    typed, "x",          radio == Kdrv716 ? "" : "10",
                                "67.0", "023",      "0001", "293", typed,        "x",
                                "67.0", "023",      "0001", "293", "00000001",   "0",
                                "0",    "0",        "0",    "0",   "0",          "0",
                                "",     "A8"};
        EXPECT_EQ(RowTexts(2), expected);
    }
}

TEST_F(TypingInto, ABlankRowTakesWhatTheDefaultRowSaysNow) {
    SetCell(0, DESC, "NO DIGIT");
    SetCell(0, TFRQ, "80.0000");
    TypeIntoCell(*CurrentGrid(), 5, MNUM, "9");
    EXPECT_EQ(Cell(5, DESC), "NO DIGIT");
    EXPECT_EQ(Cell(5, TFRQ), "80.0000");
}

TEST_F(TypingInto, AUsedRowChangesJustThatCell) {
    TypeIntoCell(*CurrentGrid(), 5, RFRQ, "70.0000");
    Texts expected = RowTexts(5);
    SetCell(0, TFRQ, "80.0000");
    TypeIntoCell(*CurrentGrid(), 5, DESC, "BRAVO");
    expected[DESC] = "BRAVO";
    EXPECT_EQ(RowTexts(5), expected);
}

TEST_F(TypingInto, ARowWithOnlyTransferFlagsChangesJustThatCell) {
    SetCell(6, TFLG, "C0");
    TypeIntoCell(*CurrentGrid(), 6, DESC, "CHARLIE");
    Texts expected(32);
    expected[DESC] = "CHARLIE";
    expected[TFLG] = "C0";
    EXPECT_EQ(RowTexts(6), expected);
}

TEST_F(TypingInto, TheDefaultRowChangesJustThatCell) {
    Texts expected = RowTexts(0);
    TypeIntoCell(*CurrentGrid(), 0, DESC, "DELTA 1");
    expected[DESC] = "DELTA 1";
    EXPECT_EQ(RowTexts(0), expected);
    EXPECT_EQ(FilledRows(), std::vector<int>{});
}

TEST_F(TypingInto, ABlankRowSelectsItAlone) {
    CurrentGrid()->GoToCell(5, DESC);
    CurrentGrid()->SetFocus();
    TypeText("ALPHA");
    // Return would move the cursor and the selection with it.
    CommitOpenEditor();
    EXPECT_EQ(SelectedRows(), std::vector<int>{5});
}

// Intentional: otherwise the selected rows would be overwritten silently.
TEST_F(TypingInto, ABlankRowLeavesOtherSelectedRowsAsTheyAre_Departure) {
    TypeIntoCell(*CurrentGrid(), 2, DESC, "KEPT");
    TypeIntoCell(*CurrentGrid(), 2, RFRQ, "71.0000");
    const Texts kept = RowTexts(2);
    CurrentGrid()->GoToCell(5, DESC);
    CurrentGrid()->SetFocus();
    CurrentGrid()->SelectRow(2);
    CurrentGrid()->SelectRow(9, true);
    TypeText("ALPHA");
    CommitOpenEditor();
    EXPECT_EQ(Cell(5, DESC), "ALPHA");
    EXPECT_EQ(RowTexts(2), kept);
    EXPECT_EQ(FilledRows(), (std::vector<int>{2, 5}));
    EXPECT_EQ(SelectedRows(), std::vector<int>{5});
}

TEST_F(TypingInto, ARowWithOtherTextButNoTransferFlagsFillsIt) {
    SetCell(8, DESC, "ECHO");
    SetCell(8, MNUM, "077");
    SetCell(8, TTON, "67.0");
    TypeIntoCell(*CurrentGrid(), 8, RFRQ, "70.0000");
    const Texts expected = {"",    "008", "", "", "FM 66-88", "0", "",    "LOW   008", "W", "70.0000", "", "",
                            "OFF", "OFF", "", "", "70.0000",  "",  "OFF", "OFF",       "",  "",        "", "",
                            "",    "",    "", "", "",         "",  "",    "A0"};
    EXPECT_EQ(RowTexts(8), expected);
}

TEST_F(TypingInto, ABlankGuardRowFillsIt) {
    TypeIntoCell(*CurrentGrid(), 122, DESC, "GUARD");
    EXPECT_EQ(Cell(122, MNUM), "122");
    EXPECT_EQ(Cell(122, DESC), "GUARD");
    EXPECT_EQ(FilledRows(), std::vector<int>{122});
}

TEST_F(TypingInto, ABlankRowAndEscapeLeaveItBlank) {
    CurrentGrid()->GoToCell(5, DESC);
    CurrentGrid()->SetFocus();
    TypeText("ALPHA");
    PressKey("Escape");
    EXPECT_FALSE(RowHasData(5));
}

TEST_F(TypingInto, ABlankRowNothingAtAllLeavesItBlank) {
    CurrentGrid()->GoToCell(5, DESC);
    CurrentGrid()->SetFocus();
    PressKey("F2");
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    PressKey("Return");
    EXPECT_FALSE(RowHasData(5));
}

TEST_F(TypingInto, ASecondPageFillsARowOfThatPage) {
    AddPage(Kdar2000);
    TypeIntoCell(*CurrentGrid(), 4, DESC, "ECHO");
    EXPECT_EQ(Cell(4, MNUM), "004");
    EXPECT_EQ(Cell(4, RONL), "N");
    EXPECT_EQ(PageGrid[0]->GetCellValue(4, MNUM), "");
}
