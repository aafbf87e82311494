// Access to the X display without the window toolkit, over a separate connection.
#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

#include <string>

// The system's own name. NOLINTNEXTLINE(bugprone-reserved-identifier)
struct _XDisplay;

namespace testbench {

/// A separate connection to the X display, so it works in any thread and whatever the program's windows do.
/// Use from one thread at a time.
class XDesk {
public:
    /// Connects to the display named by the environment. Throws std::runtime_error if there is none or it
    /// lacks the XTest extension.
    XDesk();
    ~XDesk();
    XDesk(const XDesk&) = delete;
    XDesk& operator=(const XDesk&) = delete;

    /// Presses or releases the key with this X keycode.
    void Key(unsigned code, bool down);
    /// Presses or releases a mouse button: 1 left, 2 middle, 3 right, 4 wheel up, 5 wheel down.
    void Button(unsigned button, bool down);
    /// Moves the pointer, in screen coordinates.
    void Pointer(const wxPoint& screen);

    /// The key that types a symbol on the current keyboard.
    struct KeySpot {
        unsigned code = 0; ///< X keycode; 0: the keyboard has no such symbol
        bool shift = false;
    };
    KeySpot FindKey(unsigned long symbol) const;
    /// Finds the key by the symbol's X name ("Return", "F10", "a"). Code 0 if there is no such name or key.
    KeySpot FindKey(const std::string& name) const;

    /// Title (UTF-8) of the window that has the keyboard focus; empty if there is none.
    std::string FocusedTitle() const;
    /// True if the focused window is a dialog by its declared window type.
    bool FocusIsDialog() const;
    /// Screen area of the focused window, including its frame; empty if there is none.
    wxRect FocusedArea() const;

    /// Returns a picture of the part of the screen in `part`; of the full screen if `part` is empty.
    wxImage Picture(const wxRect& part) const;

private:
    unsigned long FocusedTop() const;
    std::string Property(unsigned long window, const char* name) const;

    _XDisplay* m_display;
};

} // namespace testbench
