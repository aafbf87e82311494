#include "tests/editing/CommandTest.h"

namespace {

class CommandQuestion : public CommandTest {};

} // namespace

TEST_F(CommandQuestion, OfEachCommandWarnsThatThereIsNoUndo) {
    EXPECT_EQ(Questions().size(), 10u);
    for (const Question& question : Questions()) {
        SCOPED_TRACE(question.caption);
        testbench::DialogScript dialogs;
        ExpectQuestion(dialogs, question.command, wxID_CANCEL);
        ContextRow = 2;
        MainFrame->m_contextMenu->SendEvent(question.command);
        EXPECT_EQ(dialogs.Missing(), 0u);
    }
}

TEST_F(CommandQuestion, WhenCancelledChangesNothing) {
    for (int radio : {Krv47, Kdrv716, Kdar2000}) {
        Retarget(radio, 0);
        Fill({1, 2, 5});
        CurrentGrid()->SetCellBackgroundColour(5, MNUM, Teal());
        CurrentParameters().Flags = 0x1A;
        ContextRow = 2;
        Run(CopyRow);
        std::vector<Texts> before;
        for (int row = 0; row <= CurrentParameters().Rows; ++row)
            before.push_back(RowTexts(row));
        const auto slots = ZoneSlots;
        for (const Question& question : Questions()) {
            SCOPED_TRACE(question.caption);
            CurrentGrid()->SelectAll();
            Run(question.command, wxID_CANCEL);
            for (int row = 0; row <= CurrentParameters().Rows; ++row)
                ASSERT_EQ(RowTexts(row), before[static_cast<size_t>(row)]) << "row " << row;
            EXPECT_EQ(ZoneSlots, slots);
            EXPECT_EQ(CurrentParameters().Flags, 0x1A);
            EXPECT_TRUE(CurrentGrid()->IsInSelection(7, 7)) << "the selection stays";
        }
    }
}

TEST_F(CommandQuestion, IsAskedByNoOtherCommand) {
    Fill({2});
    for (int command : {CopyRow, MarkRow}) {
        ContextRow = 2;
        testbench::DialogScript dialogs;
        MainFrame->m_contextMenu->SendEvent(command);
        EXPECT_TRUE(dialogs.Shown().empty()) << command;
    }
    testbench::DialogScript dialogs;
    testbench::RunCommand(6016);
    EXPECT_TRUE(dialogs.Shown().empty());
}

TEST_F(CommandQuestion, LetsAnOpenEditorGiveItsTextFirst) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({1, 2, 5});
    std::vector<int> commands = {CopyRow, MarkRow};
    for (const Question& question : Questions())
        commands.push_back(question.command);
    for (int command : commands) {
        SCOPED_TRACE(command);
        SetCell(5, DESC, "before");
        CurrentGrid()->GoToCell(5, DESC);
        CurrentGrid()->EnableCellEditControl();
        testbench::PumpUntilIdle();
        testbench::TypeText("TYPED");
        ContextRow = 2;
        Run(command, wxID_CANCEL);
        EXPECT_EQ(Cell(5, DESC), "TYPED");
        EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
    }
}

TEST_F(CommandQuestion, ComesAfterAnOpenEditorHasGivenItsText) {
    testbench::ShowAndFocus(*MainFrame);
    Fill({1, 2});
    CurrentGrid()->GoToCell(2, DESC);
    CurrentGrid()->EnableCellEditControl();
    testbench::PumpUntilIdle();
    testbench::TypeText("TYPED");
    CurrentGrid()->SelectRow(2);
    ContextRow = 2;
    Run(CopyRow);
    EXPECT_EQ(RowCopyBuffer[DESC].Upper(), "TYPED");
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
}
