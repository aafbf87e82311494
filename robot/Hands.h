// Keyboard and mouse, used as by a person.
#pragma once

#include <string>

#include "robot/XDesk.h"

namespace testbench {

/// Real key presses and clicks on the X display of the environment, whichever program's windows are
/// there. For one thread at a time. Failures to act throw std::runtime_error.
class Hands {
public:
    /// `paceMs` is the rest after each key press, click and move.
    explicit Hands(int paceMs = 8) : m_paceMs(paceMs) {}

    /// Changes the rest after each action.
    void SetPace(int paceMs) { m_paceMs = paceMs; }

    // The mouse, in screen coordinates; ScreenSpots.h finds them. Buttons: 1 left, 2 middle, 3 right.
    void Move(const wxPoint& screen);
    void Click(const wxPoint& screen, int button = 1);
    void DoubleClick(const wxPoint& screen, int button = 1);
    void Drag(const wxPoint& from, const wxPoint& to, int button = 1);
    /// Turns the wheel by steps: up if positive.
    void Wheel(const wxPoint& screen, int steps);

    /// Presses a key with the modifiers before it held: "Return", "F10", "Alt+P", "Ctrl+Shift+Tab",
    /// "Shift+F10". Modifiers are Ctrl, Alt, Shift and Super; a key is an X key symbol ("Escape",
    /// "Page_Down", "Menu") or a character ("a", "%"). Behind a modifier a letter means its key:
    /// "Alt+P" holds no Shift.
    void Press(const std::string& chord);
    /// Presses a key that many times.
    void Press(const std::string& chord, int times);
    /// Types printable ASCII, line feeds as Return and tabs as Tab.
    void Type(const std::string& text);

    /// The title (UTF-8) of the window that key presses go to; empty if none.
    std::string FocusedTitle() const { return m_desk.FocusedTitle(); }

protected:
    const XDesk& Desk() const { return m_desk; }

private:
    void Rest() const;
    void Tap(const XDesk::KeySpot& key);
    XDesk::KeySpot KeyNamed(const std::string& name) const;

    XDesk m_desk;
    int m_paceMs;
};

} // namespace testbench
