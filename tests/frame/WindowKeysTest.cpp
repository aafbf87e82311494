// Work in the window without the mouse.
#include "commands/CommandIds.h"
#include "frame/SelectionDialogs.h"
#include "frame/TargetSelection.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/toolbar.h>

using namespace testbench;

namespace {

class WindowKeys : public ZelkWindowTest {
protected:
    using Place = std::pair<int, int>;

    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    static void GoTo(int row, int col) {
        CurrentGrid()->SetFocus();
        CurrentGrid()->GoToCell(row, col);
        PumpUntilIdle();
    }

    static Place Cursor() { return {CurrentGrid()->GetGridCursorRow(), CurrentGrid()->GetGridCursorCol()}; }

    static bool MenuIsOpen() { return MainFrame->m_contextMenu->GetInvokingWindow() != nullptr; }

    /// Ids of the context menu that the keys open; the menu is then closed again.
    static std::vector<int> MenuAfter(std::initializer_list<const char*> keys) {
        std::vector<int> ids;
        RunWithRobot([&](Robot& robot) {
            for (const char* key : keys) {
                robot.Press(key);
                robot.Settle();
            }
            if (!robot.WaitFor(MenuIsOpen, 500))
                return;
            ids = robot.Ask([] {
                std::vector<int> shown;
                for (const wxMenuItem* item : MainFrame->m_contextMenu->GetMenuItems())
                    shown.push_back(item->GetId());
                return shown;
            });
            robot.Press("Escape");
            EXPECT_TRUE(robot.WaitFor([] { return !MenuIsOpen(); }));
        });
        return ids;
    }

    /// Columns that are selected in row 7.
    static std::vector<int> SelectedColumns() {
        std::vector<int> columns;
        for (int col = 0; col < CurrentGrid()->GetNumberCols(); ++col)
            if (CurrentGrid()->IsInSelection(7, col))
                columns.push_back(col);
        return columns;
    }
};

} // namespace

TEST_F(WindowKeys, ChangeThePageFromTheGridAndKeepTheKeyboardInIt) {
    AddPage(Krv21);
    AddPage(Orv12);
    GoTo(3, MNUM);
    for (const auto& [key, page] :
         {std::pair("Ctrl+Page_Up", 1), std::pair("Ctrl+Page_Up", 0), std::pair("Ctrl+Page_Down", 1),
          std::pair("Ctrl+Page_Down", 2), std::pair("Ctrl+Page_Down", 0), std::pair("Ctrl+Page_Up", 2)}) {
        PressKey(key);
        EXPECT_EQ(CurrentPage, page) << key;
        const Place before = Cursor();
        PressKey("Down");
        EXPECT_EQ(Cursor(), Place(before.first + 1, before.second)) << key << ": the grid has no keyboard";
    }
}

TEST_F(WindowKeys, WorkInThePageThatIsShownWhenOneIsAddedOrDeleted) {
    GoTo(3, MNUM);
    const auto down = [](Robot& robot) {
        EXPECT_TRUE(robot.WaitForNoDialog());
        EXPECT_TRUE(robot.WaitFor([] { return CurrentGrid()->HasFocus() && MainFrame->IsActive(); }));
        const Place before = robot.Ask(Cursor);
        robot.Press("Down");
        EXPECT_TRUE(robot.WaitFor([&] { return Cursor() == Place(before.first + 1, before.second); }, 1000))
            << "page " << CurrentPage << " has no keyboard";
    };
    RunWithRobot([&](Robot& robot) {
        for (const char* key : {"F10", "Right", "Down", "a"}) {
            robot.Press(key);
            robot.Settle();
        }
        ASSERT_NE(robot.WaitForDialog("<-- Select Target Radio -->"), nullptr);
        robot.Ask([] { RadioChoice->SetSelection(Krv21); });
        ASSERT_TRUE(robot.WaitFor([] { return RadioChoice->GetParent()->FindWindow(wxID_OK)->IsEnabled(); }));
        robot.Press(KeyOfOk);
        ASSERT_TRUE(robot.WaitFor([] { return PageCount == 2; }));
        down(robot);
        for (const char* key : {"F10", "Right", "Down", "d"}) {
            robot.Press(key);
            robot.Settle();
        }
        ASSERT_NE(robot.WaitForDialog("Delete Page\\?"), nullptr);
        robot.Press("Return");
        ASSERT_TRUE(robot.WaitFor([] { return PageCount == 1; }));
        down(robot);
    });
}

TEST_F(WindowKeys, ChangeThePageAfterTheTextThatIsBeingTypedWasTaken) {
    AddPage(Krv21);
    GoTo(4, DESC);
    TypeText("hill");
    PressKey("Ctrl+Page_Up");
    EXPECT_EQ(CurrentPage, 0);
    PressKey("Ctrl+Page_Down");
    EXPECT_EQ(Cell(4, DESC), "HILL");
}

TEST_F(WindowKeys, OpenTheMenuOfAColumnThatIsSelectedWhole) {
    GoTo(7, RFRQ);
    EXPECT_EQ(MenuAfter({"Ctrl+space", "Shift+F10"}), std::vector<int>{IdDefaultCol});
    EXPECT_EQ(SelectedColumns(), std::vector<int>{RFRQ});
    GoTo(7, MNUM);
    EXPECT_EQ(MenuAfter({"Ctrl+space", "Menu"}),
              (std::vector<int>{IdRenumberToRowNum, IdRenumberSequencial}));
    CurrentParameters().Flags = PageHasMarks;
    GoTo(7, DESC);
    EXPECT_EQ(MenuAfter({"Ctrl+space", "Shift+F10"}), (std::vector<int>{IdDefaultCol, IdDefaultMarked}));
}

TEST_F(WindowKeys, OpenTheMenuOfTheCornerWhenTheWholePageIsSelected) {
    GoTo(7, RFRQ);
    EXPECT_EQ(MenuAfter({"Ctrl+Shift+space", "Shift+F10"}), std::vector<int>{IdDefaultFile});
    EXPECT_EQ(SelectedColumns().size(), size_t(CurrentGrid()->GetNumberCols()));
}

TEST_F(WindowKeys, OpenTheMenuOfTheRowOtherwise) {
    GoTo(7, RFRQ);
    const std::vector<int> rowMenu{IdDefaultRow, IdPasteRow, IdInsertRow, IdDeleteRow};
    EXPECT_EQ(MenuAfter({"Shift+F10"}), rowMenu);
    CurrentGrid()->ClearSelection();
    EXPECT_EQ(MenuAfter({"Shift+Down", "Shift+F10"}), rowMenu) << "some cells of the column";
    CurrentGrid()->ClearSelection();
    EXPECT_EQ(MenuAfter({"Shift+space", "Shift+F10"}), rowMenu);
}

TEST_F(WindowKeys, LeaveTheGridForTheToolsAndComeBack) {
    GoTo(3, DESC);
    TypeText("hill");
    for (const char* back : {"Escape", "Tab", "Ctrl+Tab"}) {
        PressKey("Ctrl+Tab");
        EXPECT_EQ(Cell(3, DESC), "HILL");
        const Place before = Cursor();
        PressKey("Down");
        EXPECT_EQ(Cursor(), before) << "the key is the tools'";
        PressKey(back);
        PressKey("Down");
        EXPECT_EQ(Cursor(), Place(before.first + 1, before.second)) << back;
    }
}

TEST_F(WindowKeys, ChooseATool) {
    GoTo(3, DESC);
    PressKey("Ctrl+Tab");
    // Open, Save, Print, download, upload, select all.
    for (int tool = 1; tool < 6; ++tool)
        PressKey("Down");
    PressKey("space");
    EXPECT_TRUE(CurrentGrid()->IsInSelection(5, MNUM));
    PressKey("Down");
    PressKey("Return");
    EXPECT_FALSE(CurrentGrid()->IsInSelection(5, MNUM));
}

TEST_F(WindowKeys, ChooseInTheDialogsWithoutTab) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->").Do([](wxDialog* dialog) {
        EXPECT_TRUE(PumpUntil([] { return RadioChoice->HasFocus(); }));
        PressKey("Down");
        const int chosen = RadioChoice->GetSelection();
        PressKey("Down");
        EXPECT_EQ(RadioChoice->GetSelection(), chosen + 1);
        RadioChoice->SetSelection(Krv21);
        PumpUntil([dialog] { return dialog->FindWindow(wxID_OK)->IsEnabled(); });
        PressKey(KeyOfOk);
    });
    RunCommand(IdPageAdd);
    EXPECT_EQ(CurrentParameters().Radio, int(Krv21));
    EXPECT_EQ(PageCount, 2);
}

TEST_F(WindowKeys, BeginInTheListOfADialogThatHasAChoiceAlready) {
    GoTo(3, DESC);
    int chosen = wxNOT_FOUND;
    RunWithRobot(
        [&](Robot& robot) {
            ASSERT_NE(robot.WaitForDialog("<-- Select Target Radio -->"), nullptr);
            robot.Settle();
            EXPECT_EQ(robot.Ask([] { return RadioChoice->GetSelection(); }), int(Krv47));
            robot.Press("Down");
            robot.Settle();
            chosen = robot.Ask([] { return RadioChoice->GetSelection(); });
            robot.Press(KeyOfOk);
        },
        [] { EXPECT_EQ(UserSelectRadioAndBand(MainFrame, CurrentPage), 0); });
    EXPECT_EQ(chosen, Krv47 + 1);
    EXPECT_EQ(CurrentParameters().Radio, Krv47 + 1);
}
