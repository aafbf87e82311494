// Keys, clicks and pictures.
#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/support/Keys.h"
#include "tests/support/Modals.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/SelfTestFrame.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/filedlg.h>
#include <wx/image.h>
#include <wx/imagpng.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>
#include <wx/wfstream.h>

#include <atomic>
#include <stdexcept>

using namespace testbench;

namespace {

const std::string EveryCharacter = "abcxyzABCXYZ0123456789 !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";

class OnAFrame : public testing::Test {
protected:
    void SetUp() override { ShowAndFocus(*frame); }

    void TearDown() override {
        frame->Destroy();
        PumpUntilIdle();
    }

    std::string Cell(int row, int column) const {
        return frame->grid->GetCellValue(row, column).utf8_string();
    }

    SelfTestFrame* frame = new SelfTestFrame;
};

using Keys = OnAFrame;
using RobotOnAFrame = OnAFrame;

} // namespace

TEST_F(Keys, ReachAGridCell) {
    TypeIntoCell(*frame->grid, 1, 2, "abc 1.5");
    EXPECT_EQ(Cell(1, 2), "abc 1.5");
    EXPECT_EQ(frame->grid->GetGridCursorRow(), 2);
}

TEST_F(Keys, OfEveryPrintableCharacterArrive) {
    TypeIntoCell(*frame->grid, 0, 0, "a" + EveryCharacter);
    EXPECT_EQ(Cell(0, 0), "a" + EveryCharacter);
}

TEST_F(Keys, WithModifiersArrive) {
    TypeIntoCell(*frame->grid, 0, 0, "text");
    PressKey("Ctrl+Home");
    PressKey("F2");
    PressKey("Ctrl+a");
    TypeText("new");
    PressKey("Escape");
    EXPECT_EQ(Cell(0, 0), "text");
    PressKey("Shift+Down");
    EXPECT_TRUE(frame->grid->IsInSelection(1, 0));
}

TEST_F(Keys, ThatDoNotExistAreExceptions) {
    EXPECT_THROW(PressKey("NoSuchKey"), std::runtime_error);
    EXPECT_THROW(PressKey("Ctrl+"), std::runtime_error);
}

TEST_F(Keys, ClicksReachButtonsCellsAndLabels) {
    ClickAt(MiddleOf(*frame->button));
    EXPECT_EQ(frame->clicks, 1);
    ClickAt(CellSpot(*frame->grid, 3, 1));
    EXPECT_EQ(frame->grid->GetGridCursorRow(), 3);
    EXPECT_EQ(frame->grid->GetGridCursorCol(), 1);
    DoubleClickAt(CellSpot(*frame->grid, 4, 2));
    EXPECT_TRUE(frame->grid->IsCellEditControlShown());
    PressKey("Escape");
    ClickAt(RowLabelSpot(*frame->grid, 2));
    EXPECT_EQ(frame->grid->GetSelectedRows().Count(), 1u);
    EXPECT_TRUE(frame->grid->IsInSelection(2, 0));
    ClickAt(ColumnLabelSpot(*frame->grid, 1));
    EXPECT_TRUE(frame->grid->IsInSelection(0, 1));
    EXPECT_FALSE(frame->grid->IsInSelection(0, 0));
    int rightClicks = 0;
    frame->grid->Bind(wxEVT_GRID_CELL_RIGHT_CLICK, [&](wxGridEvent&) { rightClicks++; });
    ClickAt(CellSpot(*frame->grid, 0, 0), 3);
    EXPECT_EQ(rightClicks, 1);
}

TEST(Pumping, EndsWithTheConditionOrTheDeadline) {
    int idles = 0;
    wxTheApp->CallAfter([&] { idles++; });
    EXPECT_TRUE(PumpUntil([&] { return idles > 0; }));
    EXPECT_FALSE(PumpUntil([] { return false; }, 50));
}

TEST_F(RobotOnAFrame, TypesIntoAGridAndClicksAButton) {
    RunWithRobot([&](Robot& robot) {
        robot.Click(robot.Ask([&] { return CellSpot(*frame->grid, 2, 0); }));
        robot.Type(EveryCharacter.substr(1) + "\n");
        EXPECT_TRUE(robot.WaitFor([&] { return Cell(2, 0) == EveryCharacter.substr(1); }))
            << robot.Ask([&] { return Cell(2, 0); });
        robot.Click(robot.Ask([&] { return MiddleOf(*frame->button); }));
        EXPECT_TRUE(robot.WaitFor([&] { return frame->clicks == 1; }));
    });
}

TEST_F(RobotOnAFrame, TypesWhileAModalDialogIsUp) {
    wxTextEntryDialog dialog(frame, "Who?", "Name");
    int result = 0;
    RunWithRobot(
        [&](Robot& robot) {
            ASSERT_EQ(robot.WaitForDialog("Name"), &dialog);
            robot.Type("Zelk");
            EXPECT_TRUE(robot.WaitFor([&] {
                auto* const text = dynamic_cast<wxTextCtrl*>(wxWindow::FindFocus());
                return text != nullptr && text->GetValue() == "Zelk";
            }));
            robot.Press("Return");
            EXPECT_TRUE(robot.WaitForNoDialog());
        },
        [&] { result = dialog.ShowModal(); });
    EXPECT_EQ(result, wxID_OK);
    EXPECT_EQ(dialog.GetValue(), "Zelk");
}

TEST_F(RobotOnAFrame, AnswersMessageBoxesOneInAnother) {
    frame->button->Bind(wxEVT_BUTTON, [&](wxCommandEvent&) {
        wxDialog outer(frame, wxID_ANY, "Outer");
        new wxButton(&outer, wxID_CANCEL);
        outer.Bind(wxEVT_CHAR_HOOK, [&](wxKeyEvent&) {
            const int answer = wxMessageBox("Go on?", "Inner", wxYES_NO | wxCENTRE, &outer);
            outer.EndModal(answer == wxNO ? 77 : 78);
        });
        frame->clicks = outer.ShowModal();
    });
    RunWithRobot([&](Robot& robot) {
        robot.Click(robot.Ask([&] { return MiddleOf(*frame->button); }));
        ASSERT_NE(robot.WaitForDialog("Outer"), nullptr);
        robot.Press("space");
        ASSERT_NE(robot.WaitForDialog("Inn.r"), nullptr);
        ASSERT_EQ(OpenDialogs().size(), 2u);
        EXPECT_EQ(OpenDialogs()[1].message, "Go on?");
        robot.Press("Alt+N");
        EXPECT_TRUE(robot.WaitFor([&] { return frame->clicks == 77; }));
        EXPECT_TRUE(robot.WaitForWindow("Bench"));
    });
}

TEST_F(RobotOnAFrame, AnswersAMessageBoxWithoutCaptionOfItsOwn) {
    int result = 0;
    RunWithRobot(
        [&](Robot& robot) {
            ASSERT_NE(robot.WaitForDialog("Message"), nullptr);
            robot.Press("Return");
        },
        [&] { result = wxMessageBox("Plain"); });
    EXPECT_EQ(result, wxOK);
}

TEST_F(RobotOnAFrame, LeavesExpectedDialogsToTheScript) {
    DialogScript dialogs;
    dialogs.ExpectMessage("Expected", "text");
    int result = 0;
    RunWithRobot(
        [&](Robot& robot) {
            ASSERT_NE(robot.WaitForDialog("Real"), nullptr);
            robot.Press("Escape");
        },
        [&] {
            wxMessageBox("text", "Expected");
            wxDialog real(frame, wxID_ANY, "Real");
            new wxButton(&real, wxID_CANCEL);
            result = real.ShowModal();
        });
    EXPECT_EQ(result, wxID_CANCEL);
    EXPECT_EQ(dialogs.Missing(), 0u);
}

TEST_F(RobotOnAFrame, WorksWhileTheProgramYieldsInAHandler) {
    bool ended = false;
    RunWithRobot(
        [&](Robot& robot) {
            EXPECT_EQ(robot.Ask([] { return 42; }), 42);
            robot.Click(robot.Ask([&] { return MiddleOf(*frame->button); }));
            EXPECT_TRUE(robot.WaitFor([&] { return frame->clicks == 1; }, 2000));
            EXPECT_FALSE(robot.Ask([&] { return std::exchange(ended, true); })) << "the loop was not running";
        },
        [&] {
            for (int pass = 0; !ended && pass < 5000; pass++) {
                wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_UI | wxEVT_CATEGORY_USER_INPUT);
                wxMilliSleep(1);
            }
            ended = true;
        });
    EXPECT_EQ(frame->clicks, 1);
}

TEST_F(RobotOnAFrame, OpensAMenuAndPicksAnEntry) {
    auto* bar = new wxMenuBar;
    auto* menu = new wxMenu;
    menu->Append(wxID_ABOUT, "&Count");
    bar->Append(menu, "&Tools");
    frame->SetMenuBar(bar);
    frame->Bind(
        wxEVT_MENU, [&](wxCommandEvent&) { frame->clicks++; }, wxID_ABOUT);
    PumpUntilIdle();
    RunWithRobot([&](Robot& robot) {
        robot.Press("Alt+T");
        robot.Settle();
        robot.Press("c");
        EXPECT_TRUE(robot.WaitFor([&] { return frame->clicks == 1; }));
    });
}

TEST_F(RobotOnAFrame, PicksFromAContextMenu) {
    frame->grid->Bind(wxEVT_GRID_CELL_RIGHT_CLICK, [&](wxGridEvent&) {
        wxMenu menu;
        menu.Append(wxID_ANY, "First");
        menu.Append(wxID_ANY, "Second");
        frame->clicks = menu.FindItem("Second") == frame->GetPopupMenuSelectionFromUser(menu) ? 2 : 1;
    });
    RunWithRobot([&](Robot& robot) {
        robot.Click(robot.Ask([&] { return CellSpot(*frame->grid, 1, 1); }), 3);
        robot.Settle();
        robot.Press("Down", 2);
        robot.Press("Return");
        EXPECT_TRUE(robot.WaitFor([&] { return frame->clicks == 2; })) << frame->clicks;
    });
}

TEST_F(RobotOnAFrame, FillsInARealFileDialog) {
    const TempFolder folder;
    WriteFile(folder / "channels.zelk", "text");
    wxFileDialog dialog(frame, "Open it", "", "", "*.zelk", wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    int result = 0;
    RunWithRobot(
        [&](Robot& robot) {
            ASSERT_EQ(robot.WaitForDialog("Open it"), &dialog);
            robot.Type((folder / "channels.zelk").string());
            robot.Press("Return");
            EXPECT_TRUE(robot.WaitForNoDialog());
        },
        [&] { result = dialog.ShowModal(); });
    EXPECT_EQ(result, wxID_OK);
    EXPECT_EQ(dialog.GetPath().utf8_string(), (folder / "channels.zelk").string());
}

TEST_F(RobotOnAFrame, SavesByARealFileDialog) {
    const TempFolder folder;
    wxFileDialog dialog(frame, "Save it", "", "proposed.zelk", "*.zelk", wxFD_SAVE);
    int result = 0;
    RunWithRobot(
        [&](Robot& robot) {
            ASSERT_EQ(robot.WaitForDialog("Save it"), &dialog);
            robot.Press("Ctrl+a");
            robot.Type((folder / "new.zelk").string());
            robot.Press("Return");
            EXPECT_TRUE(robot.WaitForNoDialog());
        },
        [&] { result = dialog.ShowModal(); });
    EXPECT_EQ(result, wxID_OK);
    EXPECT_EQ(dialog.GetPath().utf8_string(), (folder / "new.zelk").string());
}

TEST_F(RobotOnAFrame, DragsOverCells) {
    RunWithRobot([&](Robot& robot) {
        const auto [from, to] =
            robot.Ask([&] { return std::pair(CellSpot(*frame->grid, 0, 0), CellSpot(*frame->grid, 2, 1)); });
        robot.Drag(from, to);
        EXPECT_TRUE(robot.WaitFor([&] { return frame->grid->IsInSelection(2, 1); }));
    });
}

TEST_F(RobotOnAFrame, TakesAPictureOfTheScreen) {
    const TempFolder folder;
    const std::string whole = folder / "whole.png", part = folder / "part.png";
    frame->button->SetBackgroundColour(*wxRED);
    wxRect buttonOnScreen;
    RunWithRobot([&](Robot& robot) {
        robot.Settle();
        buttonOnScreen = robot.Ask([&] { return frame->button->GetScreenRect(); });
        robot.Screenshot(whole);
        robot.Screenshot(part, buttonOnScreen);
    });
    EXPECT_EQ(ReadFile(whole).substr(0, 4), "\x89PNG");
    wxPNGHandler handler;
    wxImage picture, button;
    wxFFileInputStream wholeFile(wxString::FromUTF8(whole)), partFile(wxString::FromUTF8(part));
    ASSERT_TRUE(handler.LoadFile(&picture, wholeFile));
    EXPECT_EQ(picture.GetSize(), wxGetDisplaySize());
    ASSERT_TRUE(handler.LoadFile(&button, partFile));
    EXPECT_EQ(button.GetSize(), buttonOnScreen.GetSize());
    EXPECT_GT(picture.CountColours(), 10u) << "an empty screen";
    const wxPoint spot = buttonOnScreen.GetPosition() + wxPoint(4, 4);
    EXPECT_EQ(picture.GetRed(spot.x, spot.y), button.GetRed(4, 4));
    EXPECT_GT(button.GetRed(4, 4), 200);
    EXPECT_LT(button.GetBlue(4, 4), 60);
}

TEST(RunWithRobot, TurnsExceptionsIntoFailures) {
    EXPECT_NONFATAL_FAILURE(RunWithRobot([](Robot&) { throw std::runtime_error("stumbled"); }),
                            "script: stumbled");
    EXPECT_NONFATAL_FAILURE(
        RunWithRobot([](Robot& robot) { robot.Ask([] { throw std::runtime_error("asked wrong"); }); }),
        "script: asked wrong");
}

TEST(RunWithRobot, CarriesTheChecksOfTheScriptOver) {
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(RunWithRobot([](Robot&) { EXPECT_EQ("seen", "other"); }), "seen");
}

TEST(RunWithRobot, CancelsADialogThatTheScriptLeavesOpen) {
    EXPECT_NONFATAL_FAILURE(RunWithRobot([](Robot& robot) { robot.WaitForDialog("Left"); },
                                         [] { wxDialog(nullptr, wxID_ANY, "Left").ShowModal(); }),
                            "left open at the script's end: dialog \"Left\"");
}

TEST(RunWithRobot, CancelsAMessageBoxThatTheScriptLeavesOpen) {
    EXPECT_NONFATAL_FAILURE(
        RunWithRobot([](Robot& robot) { robot.WaitForDialog("Left"); }, [] { wxMessageBox("text", "Left"); }),
        "left open at the script's end: message box \"Left\"");
}

TEST(Robot, GivesUpOnWhatNeverComes) {
    RunWithRobot([](Robot& robot) {
        EXPECT_FALSE(robot.WaitFor([] { return false; }, 50));
        EXPECT_EQ(robot.WaitForDialog("Nothing", 50), nullptr);
        EXPECT_FALSE(robot.WaitForWindow("Nothing", 50));
    });
}

TEST(Robot, IsToldThatTheWindowThreadDoesNotAnswer) {
    std::atomic<bool> given = false;
    bool ran = false;
    RunWithRobot(
        [&](Robot& robot) {
            EXPECT_THROW(robot.Ask([&] { ran = true; }, 100), GuiSilent);
            given = true;
        },
        [&] {
            while (!given) {
                wxMilliSleep(5);
            }
        });
    PumpUntilIdle();
    EXPECT_FALSE(ran) << "a question that was given up must not run later";
}
