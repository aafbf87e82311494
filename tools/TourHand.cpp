#include "tools/TourHand.h"

#include "frame/SelectionDialogs.h"
#include "robot/PictureSpot.h"
#include "robot/ScreenSpots.h"

#include <wx/choice.h>
#include <wx/dialog.h>
#include <wx/image.h>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <stdexcept>

using namespace testbench;

namespace Tour {

TourHand::TourHand(Robot& robot, std::filesystem::path pictures)
    : m_robot(robot), m_pictures(std::move(pictures)) {
    std::filesystem::create_directories(m_pictures);
    m_robot.SetPace(15);
}

void TourHand::Done(const std::string& step, const std::string& outcome) {
    m_robot.Settle();
    char name[16];
    std::snprintf(name, sizeof name, "%02d-", ++m_step);
    std::string file = name + step + ".png";
    for (char& c : file)
        if (c == ' ')
            c = '-';
    m_robot.Screenshot(m_pictures / file);
    std::printf("%2d. %-24s %s\n", m_step, step.c_str(), outcome.c_str());
    std::fflush(stdout);
}

void TourHand::Need(bool condition, const std::string& what) {
    if (condition)
        return;
    m_robot.Screenshot(m_pictures / "failed.png");
    throw std::runtime_error(what);
}

void TourHand::ClickTool(ToolImage tool) {
    const wxImage picture = m_robot.Ask([tool] { return GetToolImage(tool); });
    std::optional<wxPoint> spot;
    for (int tries = 0; tries < 50 && !spot; ++tries) {
        m_robot.Settle();
        spot = FindPicture(Desk().Picture({}), picture);
    }
    Need(spot.has_value(), "a tool is not to be seen");
    m_robot.Click(*spot);
}

void TourHand::AnswerWithReturn(const std::string& caption) {
    Need(m_robot.WaitForDialog(caption) != nullptr, "no dialog " + caption);
    m_robot.Press("Return");
}

wxDialog* TourHand::Pick(const std::string& caption, wxChoice*& choice, const std::string& text) {
    wxDialog* dialog = m_robot.WaitForDialog(caption);
    Need(dialog != nullptr, "no dialog " + caption);
    m_robot.Settle();
    const wxPoint spot = m_robot.Ask([&] { return MiddleOf(*choice); });
    const auto chosen = [&] { return choice->GetStringSelection() == text; };
    m_robot.Click(spot);
    const int steps = m_robot.Ask([&] {
        const int from = choice->GetSelection();
        return choice->FindString(text) - (from == wxNOT_FOUND ? 0 : from);
    });
    // A busy window takes its time. Without a wait another click would follow one that it hasn't seen yet.
    const auto press = [this](int times) {
        m_robot.Settle();
        m_robot.Press("Down", times);
        m_robot.Press("Return");
        m_robot.Settle();
    };
    press(std::max(steps, 0));
    for (int tries = 0; tries < 40 && !m_robot.WaitFor(chosen, 300); ++tries) {
        m_robot.Click(spot);
        press(1);
    }
    Need(m_robot.WaitFor(chosen), "can't choose " + text);
    return dialog;
}

void TourHand::ClickOk(wxDialog* dialog, const std::string& caption) {
    Need(m_robot.WaitFor([&] { return dialog->FindWindow(wxID_OK)->IsEnabled(); }), "OK can't be pressed");
    const wxPoint ok = m_robot.Ask([&] { return MiddleOf(*dialog->FindWindow(wxID_OK)); });
    m_robot.Click(ok);
    Need(m_robot.WaitForNoDialog(), caption + " stays open");
}

void TourHand::Choose(const std::string& step, const std::string& caption, wxChoice*& choice,
                      const std::string& text) {
    wxDialog* dialog = Pick(caption, choice, text);
    Done(step, text);
    ClickOk(dialog, caption);
}

void TourHand::OpenPageMenu() {
    // The first entry of the second menu.
    m_robot.Press("F10");
    m_robot.Settle();
    m_robot.Press("Right");
    m_robot.Settle();
    Done("page menu", "open");
    m_robot.Press("Down");
    m_robot.Press("Return");
}

} // namespace Tour
