#include "tools/GuideCamera.h"

#include "frame/ZelkMain.h"
#include "robot/Robot.h"

#include <wx/image.h>
#include <wx/quantize.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

using namespace testbench;

namespace Guide {

namespace {

constexpr int Colours = 64;

/// Pointer position outside of the pictures, so that the pointer highlights no control.
const wxPoint PointerRest{1270, 1015};

} // namespace

Camera::Camera(Robot& robot, std::filesystem::path folder) : m_robot(robot), m_folder(std::move(folder)) {
    std::filesystem::create_directories(m_folder);
}

void Camera::Window(const std::string& name, int height) {
    m_robot.Settle();
    wxRect area = m_robot.Ask([] { return MainFrame->GetScreenRect(); });
    if (height > 0)
        area.SetHeight(std::min(height, area.GetHeight()));
    Part(name, area);
}

void Camera::FocusedWindow(const std::string& name) {
    m_robot.Move(PointerRest);
    m_robot.Settle();
    const wxRect area = Desk().FocusedArea();
    if (area.IsEmpty())
        throw std::runtime_error("no dialog for the picture " + name);
    Part(name, area);
}

void Camera::Part(const std::string& name, const wxRect& part) {
    const wxImage picture = Desk().Picture(part);
    wxImage small;
    if (!wxQuantize::Quantize(picture, small, Colours))
        throw std::runtime_error("can't take the colours of " + name);
    small.SetOption(wxIMAGE_OPTION_PNG_FORMAT, wxPNG_TYPE_PALETTE);
    small.SetOption(wxIMAGE_OPTION_PNG_COMPRESSION_LEVEL, 9);
    const std::filesystem::path file = m_folder / (name + ".png");
    if (!small.SaveFile(wxString::FromUTF8(file.string()), wxBITMAP_TYPE_PNG))
        throw std::runtime_error("can't write " + file.string());
    std::printf("%s\n", file.c_str());
    std::fflush(stdout);
}

} // namespace Guide
