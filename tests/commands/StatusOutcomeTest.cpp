#include "commands/StatusOutcome.h"

#include "commands/CommandIds.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/Modals.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <gtest/gtest.h>
#include <wx/notebook.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

using testbench::DialogScript;
using testbench::Robot;
using testbench::RunWithRobot;
using testbench::ShowAndFocus;

namespace {

wxString FirstField() {
    return MainFrame->m_statusBar->GetStatusText(0);
}

wxString ToolTip() {
    return MainFrame->m_statusBar->GetToolTipText();
}

/// Moves the pointer down the tools until the help of one is shown. Returns its screen position.
wxPoint MoveToTool(Robot& robot, const wxString& help) {
    const wxRect bar = robot.Ask([] { return MainFrame->m_toolBar->GetScreenRect(); });
    for (int y = bar.y + 5; y < bar.GetBottom(); y += 8) {
        const wxPoint at(bar.x + bar.width / 2, y);
        robot.Move(at);
        robot.Settle();
        if (robot.Ask([&] { return FirstField() == help; }))
            return at;
    }
    ADD_FAILURE() << "no tool shows " << help;
    return wxDefaultPosition;
}

} // namespace

using Outcome = ZelkWindowTest;

TEST_F(Outcome, IsShownWithItsStoryAsToolTip) {
    TellOutcome("Saved a.zelk", "Saved a.zelk; 3 rows are incomplete and were not saved: 5, 17, 40");
    EXPECT_EQ(FirstField().utf8_string(), "Saved a.zelk");
    EXPECT_EQ(ToolTip().utf8_string(), "Saved a.zelk; 3 rows are incomplete and were not saved: 5, 17, 40");
    TellOutcome("Saved b.zelk");
    EXPECT_EQ(FirstField().utf8_string(), "Saved b.zelk");
    EXPECT_EQ(ToolTip().utf8_string(), "Saved b.zelk");
}

TEST_F(Outcome, OfNothingTakesAFormerOneAway) {
    TellOutcome("Saved a.zelk");
    TellOutcome("");
    EXPECT_EQ(FirstField().utf8_string(), "Select function");
    EXPECT_EQ(ToolTip().utf8_string(), "");
    EXPECT_FALSE(OutcomeIsTold());
}

TEST_F(Outcome, ThatIsTooLongForTheFieldEndsInAnEllipsis) {
    const wxString verdict = "NOT SAVED: " + wxString('w', 200);
    TellOutcome(verdict);
    EXPECT_TRUE(FirstField().StartsWith("NOT SAVED: www"));
    EXPECT_TRUE(FirstField().EndsWith(wxUniChar(0x2026)) || FirstField().EndsWith("..."));
    wxRect field;
    ASSERT_TRUE(MainFrame->m_statusBar->GetFieldRect(0, field));
    EXPECT_LE(MainFrame->m_statusBar->GetTextExtent(FirstField()).x, field.width);
    EXPECT_EQ(ToolTip(), verdict);
}

TEST_F(Outcome, GoesWithTheNextCommand) {
    TellOutcome("Saved a.zelk", "story");
    wxCommandEvent event(wxEVT_TOOL, IdSelectAll);
    MainFrame->ProcessWindowEvent(event);
    EXPECT_EQ(FirstField().utf8_string(), "Select function");
    EXPECT_EQ(ToolTip().utf8_string(), "");
}

TEST_F(Outcome, GoesWithAPageChange) {
    SetPageParameters(MainFrame, 1, Krv214, 0);
    CreateNewPage(MainFrame, 1);
    TellOutcome("Saved a.zelk");
    MainFrame->m_notebook->SetSelection(0);
    EXPECT_EQ(FirstField().utf8_string(), "Select function");
}

TEST_F(Outcome, IsNotCoveredByTheHelpOfTheToolThatWasClicked) {
    ShowAndFocus(*MainFrame);
    RunWithRobot([](Robot& robot) {
        const auto shows = [](const char* text) { return [text] { return FirstField() == text; }; };
        const wxPoint open = MoveToTool(robot, "Open radio data file");
        const wxPoint save = MoveToTool(robot, "Save radio data file");
        robot.Ask([] {
            TellOutcome("NOT SAVED: disk full");
            return 0;
        });
        robot.Move(open);
        robot.Settle();
        robot.Move(save);
        robot.Settle();
        EXPECT_TRUE(robot.WaitFor(shows("NOT SAVED: disk full")));
        robot.Ask([] {
            ForgetOutcome();
            return 0;
        });
        robot.Move(open);
        EXPECT_TRUE(robot.WaitFor(shows("Open radio data file"))) << "help is back";
    });
}

TEST_F(Outcome, ComesBackWhenTheHelpOfAMenuEntryGoes) {
    ShowAndFocus(*MainFrame);
    TellOutcome("NOT SAVED: disk full");
    RunWithRobot([](Robot& robot) {
        const auto shows = [](const char* text) { return [text] { return FirstField() == text; }; };
        robot.Press("F10");
        robot.Press("Down");
        EXPECT_TRUE(robot.WaitFor(shows("Open a memory data file")));
        robot.Press("Escape", 2);
        EXPECT_TRUE(robot.WaitFor(shows("NOT SAVED: disk full")));
    });
}

TEST_F(Outcome, ComesBackWhenTheHelpOfAMenuEntryGoesAlsoWithThePointerOnATool) {
    ShowAndFocus(*MainFrame);
    RunWithRobot([](Robot& robot) {
        const auto shows = [](const char* text) { return [text] { return FirstField() == text; }; };
        MoveToTool(robot, "Save radio data file");
        robot.Ask([] {
            TellOutcome("NOT SAVED: disk full");
            return 0;
        });
        robot.Press("F10");
        robot.Press("Down");
        EXPECT_TRUE(robot.WaitFor(shows("Open a memory data file")));
        robot.Press("Escape", 2);
        EXPECT_TRUE(robot.WaitFor(shows("NOT SAVED: disk full")));
    });
}

TEST_F(Outcome, OfACheckTellsHowManyCellsWereReplacedAndTheFirstRow) {
    for (int row : {7, 9})
        FillRowsFromDefault({row});
    SetCell(7, RFRQ, "155.0000");
    SetCell(9, MODE, "?");
    DialogScript script;
    script.ExpectMessage("Validate Page", "Validate row data");
    wxCommandEvent event(wxEVT_MENU, IdValidatePage);
    MainFrame->OnCommand(event);
    EXPECT_EQ(FirstField().utf8_string(), "2 cells replaced from row 7");
    EXPECT_EQ(ToolTip().utf8_string(), "2 cells were replaced: row 7 RxFreq; row 9 Mode");
    script.ExpectMessage("Validate Page", "Validate row data");
    MainFrame->OnCommand(event);
    EXPECT_EQ(FirstField().utf8_string(), "No cell replaced");
}

TEST_F(Outcome, OfEachKindFitsItsFieldInAWindowOfDefaultSize) {
    for (const char* verdict : {"9999 cells replaced from row 502", "NOT SAVED: no permission",
                                "200 of 500 selected rows sent", "502 rows NOT SAVED: a"}) {
        TellOutcome(verdict);
        EXPECT_EQ(FirstField(), wxString(verdict));
    }
}
