// Steps in the program's windows that all jobs of the tour use, with a report line and a picture of each.
#pragma once

#include "resources/ToolImages.h"
#include "robot/Robot.h"

#include <filesystem>
#include <string>

class wxChoice;
class wxDialog;

namespace Tour {

class TourHand {
public:
    TourHand(testbench::Robot& robot, std::filesystem::path pictures);

    testbench::Robot& TheRobot() { return m_robot; }
    const std::filesystem::path& Pictures() const { return m_pictures; }

    /// Ends a step: saves a numbered picture of the screen and prints a line with the outcome.
    void Done(const std::string& step, const std::string& outcome);

    /// Throws std::runtime_error with `what`, which ends the tour, if the condition doesn't hold.
    void Need(bool condition, const std::string& what);

    /// Finds the tool by its picture and clicks on it.
    void ClickTool(ToolImage tool);

    /// Answers the dialog with this caption by its default button.
    void AnswerWithReturn(const std::string& caption);

    /// Selects a choice's entry with the keyboard, in the dialog with this caption. The dialog stays open.
    wxDialog* Pick(const std::string& caption, wxChoice*& choice, const std::string& text);

    /// Clicks OK in an open dialog and waits until it is closed.
    void ClickOk(wxDialog* dialog, const std::string& caption);

    /// Picks a choice's entry, ends the step, and clicks OK.
    void Choose(const std::string& step, const std::string& caption, wxChoice*& choice,
                const std::string& text);

    /// Picks "Add Page" in the page menu.
    void OpenPageMenu();

private:
    testbench::Robot& m_robot;
    std::filesystem::path m_pictures;
    int m_step = 0;
};

} // namespace Tour
