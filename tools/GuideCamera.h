// Takes the pictures of the user guide.
#pragma once

#include <wx/gdicmn.h>

#include <filesystem>
#include <string>

namespace testbench {
class Robot;
}

namespace Guide {

/// Takes pictures of the program's windows into one folder, as PNG files with few colours to keep them small.
/// The picture functions throw std::runtime_error if a picture can't be written.
class Camera {
public:
    /// Creates the folder if it doesn't exist.
    Camera(testbench::Robot& robot, std::filesystem::path folder);

    /// Pictures the main window with everything on top of it. `name` is the file name without extension. If
    /// `height` is above 0, pictures only that many pixels from the top.
    void Window(const std::string& name, int height = 0);

    /// Pictures only the window or dialog that has the keyboard focus. Throws std::runtime_error if none has.
    void FocusedWindow(const std::string& name);

    /// Pictures a part of the screen.
    void Part(const std::string& name, const wxRect& part);

private:
    testbench::Robot& m_robot;
    std::filesystem::path m_folder;
};

} // namespace Guide
