// Keyboard and mouse input as from a person.
#pragma once

#include "robot/Desk.h"

#include <string>

namespace testbench {

/// Sends real key presses and clicks to windows of any program on the display. Use from one thread at a time.
/// Throws std::runtime_error if an action fails.
class Hands {
public:
    /// `paceMs` is the pause after each key press, click and move, in milliseconds.
    explicit Hands(int paceMs = 8) : m_paceMs(paceMs) {}

    /// Changes the pause after each action.
    void SetPace(int paceMs) { m_paceMs = paceMs; }

    // Mouse actions take screen coordinates; see ScreenSpots.h. Buttons: 1 left, 2 middle, 3 right.
    void Move(const wxPoint& screen);
    void Push(int button = 1);
    void LetGo(int button = 1);
    void Click(const wxPoint& screen, int button = 1);
    void DoubleClick(const wxPoint& screen, int button = 1);
    void Drag(const wxPoint& from, const wxPoint& to, int button = 1);
    /// Turns the wheel by this many steps: up if positive, down if negative.
    void Wheel(const wxPoint& screen, int steps);

    /// Presses a key while holding the modifiers before it: "Return", "F10", "Alt+P", "Ctrl+Shift+Tab",
    /// "Shift+F10". Modifiers are Ctrl, Alt, Shift and Super; a key is an X key symbol ("Escape",
    /// "Page_Down", "Menu") or a character ("a", "%"). After a modifier, a letter means its key:
    /// "Alt+P" doesn't press Shift.
    void Press(const std::string& chord);
    /// Presses a key or chord `times` times.
    void Press(const std::string& chord, int times);
    /// Types printable ASCII text; line feeds are typed as Return, tabs as Tab.
    void Type(const std::string& text);

    /// Title (UTF-8) of the window that has the keyboard focus; empty if there is none.
    std::string FocusedTitle() const { return m_desk.FocusedTitle(); }

protected:
    const Desk& TheDesk() const { return m_desk; }

private:
    void Rest() const;
    void Tap(const Desk::KeySpot& key);
    Desk::KeySpot KeyNamed(const std::string& name) const;

    Desk m_desk;
    int m_paceMs;
};

} // namespace testbench
