// Access to the display without the window toolkit.
#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

#include <memory>
#include <string>

namespace testbench {

/// The system's keyboard, mouse and screen: on Linux a separate connection to the X display. It works in any
/// thread and whatever the program's windows do. Use from one thread at a time.
class Desk {
public:
    /// Connects to the display, on Linux the one that the environment names. Throws std::runtime_error if
    /// there is none or it takes no input from programs.
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Presses or releases the key with this code of the system.
    void Key(unsigned code, bool down);
    /// Presses or releases a mouse button: 1 left, 2 middle, 3 right, 4 wheel up, 5 wheel down.
    void Button(unsigned button, bool down);
    /// Clicks twice with a mouse button, 1 to 3, without a moment between the clicks: on a busy machine the
    /// system would take them for two single ones.
    void DoubleClick(unsigned button);
    /// Moves the pointer, in screen coordinates.
    void Pointer(const wxPoint& screen);

    /// The key that types a symbol on the current keyboard.
    struct KeySpot {
        unsigned code = 0; ///< of the system; 0: the keyboard has no such symbol
        bool shift = false;
    };
    /// Finds the key that types a printable ASCII character.
    KeySpot FindKey(char character) const;
    /// Finds the key by its X name ("Return", "F10", "period"). Code 0 if there is no such name or key.
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
    class Connection;
    std::unique_ptr<Connection> m_connection;
};

} // namespace testbench
