// The hands of the tour: what every job of it does with the program's windows, step by step, told and
// pictured.
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

    /// Ends a step: a picture of the screen, numbered, and a line that tells how it went.
    void Done(const std::string& step, const std::string& outcome);

    /// Gives the tour up, by std::runtime_error, if the condition doesn't hold.
    void Need(bool condition, const std::string& what);

    /// Finds the tool by its picture and clicks it.
    void ClickTool(ToolImage tool);

    /// Answers the dialog of that caption with its default button.
    void AnswerWithReturn(const std::string& caption);

    /// Walks to a choice's entry with the keyboard in the dialog of that caption, which stays open.
    wxDialog* Pick(const std::string& caption, wxChoice*& choice, const std::string& text);

    /// Clicks OK in an open dialog and waits until it has gone.
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
