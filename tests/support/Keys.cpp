#include "tests/support/Keys.h"

#include "robot/Hands.h"
#include "tests/support/Arrivals.h"

#include <gtest/gtest.h>
#include <wx/event.h>
#include <wx/grid.h>
#include <wx/toplevel.h>

namespace testbench {

namespace {

Hands& TheHands() {
    static Hands hands(1);
    return hands;
}

/// Waits until that many clicks and key presses have ended, and handles what they cause. On a busy machine
/// that takes its time; what the window manager takes doesn't come.
void Await(const Arrivals& arrivals, size_t count) {
    constexpr int patienceMs = 2000;
    PumpUntil([&] { return arrivals.Count() >= count; }, patienceMs);
    PumpUntilIdle();
}

} // namespace

void ShowAndFocus(wxTopLevelWindow& window) {
    window.Show();
    window.Raise();
    const std::string title = window.GetTitle().utf8_string();
    EXPECT_TRUE(PumpUntil([&] { return window.IsActive() && TheHands().FocusedTitle() == title; }))
        << "the window \"" << title << "\" did not get the keyboard";
    PumpUntilIdle();
}

void TypeText(const std::string& text) {
    const Arrivals arrivals;
    TheHands().Type(text);
    Await(arrivals, text.size());
}

void PressKey(const std::string& chord) {
    const Arrivals arrivals;
    TheHands().Press(chord);
    Await(arrivals, 1);
}

void ClickAt(const wxWindow& window, const wxPoint& client, int button) {
    ClickAt(SpotIn(window, client), button);
}

void DoubleClickAt(const wxWindow& window, const wxPoint& client, int button) {
    DoubleClickAt(SpotIn(window, client), button);
}

void ClickAt(const wxPoint& screen, int button) {
    const Arrivals arrivals;
    TheHands().Click(screen, button);
    Await(arrivals, 1);
}

void DoubleClickAt(const wxPoint& screen, int button) {
    const Arrivals arrivals;
    TheHands().DoubleClick(screen, button);
    Await(arrivals, 2);
}

void DragFrom(const wxPoint& from, const wxPoint& to) {
    const Arrivals arrivals;
    TheHands().Move(from);
    TheHands().Push();
    PumpUntilIdle();
    // A single jump starts no drag.
    for (const wxPoint& spot : {from + (to - from) / 2, to + wxPoint(1, 0), to}) {
        TheHands().Move(spot);
        PumpUntilIdle();
    }
    TheHands().LetGo();
    Await(arrivals, 1);
}

void TypeIntoCell(wxGrid& grid, int row, int column, const std::string& text) {
    grid.GoToCell(row, column);
    grid.SetFocus();
    PumpUntilIdle();
    TypeText(text);
    PressKey("Return");
}

} // namespace testbench
