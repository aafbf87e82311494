// Takes the pictures of the user guide.
#pragma once

#include <filesystem>
#include <string>

#include <wx/gdicmn.h>

namespace testbench {
class Robot;
}

namespace Guide {

/// Takes pictures of the program's windows into one folder, as PNG of few colours: small files.
class Camera {
public:
    /// Makes the folder if it doesn't exist.
    Camera(testbench::Robot& robot, std::filesystem::path folder);

    /// The main window as it stands, with all that lies over it. `name` is that of the file, without
    /// extension.
    /// Of a `height` above 0 only so many pixels from the top are pictured.
    void Window(const std::string& name, int height = 0);

    /// The window or dialog that has the keyboard, alone.
    void FocusedWindow(const std::string& name);

    /// A part of the screen.
    void Part(const std::string& name, const wxRect& part);

private:
    testbench::Robot& m_robot;
    std::filesystem::path m_folder;
};

} // namespace Guide
