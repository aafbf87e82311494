// The entries of the File menu that print, and the dialog of the page set-up, as a user works with them.
#pragma once

#include "frame/ZelkMain.h"
#include "robot/ScreenSpots.h"
#include "tests/support/RunWithRobot.h"

#include <gtest/gtest.h>
#include <wx/generic/prntdlgg.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include <functional>
#include <string>

namespace printtest {

using testbench::MiddleOf;
using testbench::Robot;
using testbench::RunWithRobot;
using testbench::SpotIn;

/// Positions of the entries in the File menu, not counting the separator.
enum FileMenuEntry { PrintEntry = 6, PreviewEntry = 7, PageSetupEntry = 8 };

inline void ChooseFromFileMenu(Robot& robot, FileMenuEntry entry) {
    robot.Press("F10");
    robot.Settle();
    robot.Press("Down", entry);
    robot.Press("Return");
}

/// Opens the page set-up, runs work on it and closes it with the button.
inline void SetUpPage(int button, const std::function<void(Robot&, wxGenericPageSetupDialog*)>& work = {}) {
    RunWithRobot([&](Robot& robot) {
        ChooseFromFileMenu(robot, PageSetupEntry);
        auto* dialog = static_cast<wxGenericPageSetupDialog*>(robot.WaitForDialog("Page setup"));
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(robot.Ask([=] { return dialog->GetParent(); }), MainFrame);
        if (work)
            work(robot, dialog);
        robot.Click(robot.Ask([=] { return MiddleOf(*dialog->FindWindow(button)); }));
        EXPECT_TRUE(robot.WaitForNoDialog());
    });
}

inline void TypeMargin(Robot& robot, wxTextCtrl* field, const std::string& text) {
    robot.Click(robot.Ask([=] { return MiddleOf(*field); }));
    EXPECT_TRUE(robot.WaitFor([=] { return field->HasFocus(); })) << text;
    robot.Press("Ctrl+A");
    EXPECT_TRUE(robot.WaitFor([=] { return field->GetStringSelection() == field->GetValue(); })) << text;
    robot.Type(text);
    EXPECT_TRUE(robot.WaitFor([=] { return field->GetValue() == text; })) << text;
}

inline void ClickLandscape(Robot& robot, wxGenericPageSetupDialog* dialog) {
    // The right one of the two buttons under the box's title.
    robot.Click(robot.Ask([=] {
        const wxSize size = dialog->m_orientationRadioBox->GetSize();
        return SpotIn(*dialog->m_orientationRadioBox, wxPoint(size.x * 3 / 4, size.y * 3 / 4));
    }));
    EXPECT_TRUE(robot.WaitFor([=] { return dialog->m_orientationRadioBox->GetSelection() == 1; }));
}

} // namespace printtest
