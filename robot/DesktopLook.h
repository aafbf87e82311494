// Fonts and themes of the desktop.
#pragma once

#include <string>

namespace testbench {

/// Sets the desktop's font, size of texts and theme for this process during its lifetime, as a user does for
/// the desktop. The toolkit's own settings hold afterwards. Call in the window thread.
class DesktopLook {
public:
    DesktopLook() = default;
    ~DesktopLook();
    DesktopLook(const DesktopLook&) = delete;
    DesktopLook& operator=(const DesktopLook&) = delete;

    /// Scales all texts, as the setting for larger text does: 1 is the usual size.
    void ScaleTexts(double scale);

    /// Sets the font by the desktop's description: "Sans 16".
    void SetFont(const std::string& description);

    /// Sets the theme by its name; dark chooses its dark variant.
    void SetTheme(const std::string& name, bool dark = false);
};

} // namespace testbench
