// The X display seen from outside the window toolkit, over a connection of its own.
#pragma once

#include <string>

#include <wx/gdicmn.h>
#include <wx/image.h>

struct _XDisplay;

namespace testbench {

/// A connection of its own, so that it works in any thread and whatever the program's windows do.
/// To be used by one thread at a time.
class XDesk {
public:
    /// Connects to the display of the environment; throws std::runtime_error if there is none, or if
    /// it lacks the XTest extension.
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

    /// Which key brings a symbol on the present keyboard.
    struct KeySpot {
        unsigned code = 0; ///< X keycode; 0: the keyboard has no such symbol
        bool shift = false;
    };
    KeySpot FindKey(unsigned long symbol) const;
    /// For a symbol's X name ("Return", "F10", "a"); code 0 if there is no such name or key.
    KeySpot FindKey(const std::string& name) const;

    /// The title (UTF-8) of the window that key presses go to now; empty if there is none.
    std::string FocusedTitle() const;
    /// Whether the window that key presses go to is a dialog, as it told the window manager.
    bool FocusIsDialog() const;
    /// Where the window that key presses go to is on the screen, with its frame; empty if there is none.
    wxRect FocusedArea() const;

    /// What the screen shows, or the part of it in `part` (an empty one: all).
    wxImage Picture(const wxRect& part) const;

private:
    unsigned long FocusedTop() const;
    std::string Property(unsigned long window, const char* name) const;

    _XDisplay* m_display;
};

} // namespace testbench
