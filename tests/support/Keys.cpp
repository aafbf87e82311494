#include "tests/support/Keys.h"

#include <gtest/gtest.h>

#include <wx/grid.h>
#include <wx/toplevel.h>

#include "tests/support/robot/Hands.h"

namespace testbench {

namespace {

Hands& TheHands() {
    static Hands hands(1);
    return hands;
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
    TheHands().Type(text);
    PumpUntilIdle();
}

void PressKey(const std::string& chord) {
    TheHands().Press(chord);
    PumpUntilIdle();
}

void ClickAt(const wxWindow& window, const wxPoint& client, int button) {
    ClickAt(SpotIn(window, client), button);
}

void DoubleClickAt(const wxWindow& window, const wxPoint& client, int button) {
    DoubleClickAt(SpotIn(window, client), button);
}

void ClickAt(const wxPoint& screen, int button) {
    TheHands().Click(screen, button);
    PumpUntilIdle();
}

void DoubleClickAt(const wxPoint& screen, int button) {
    TheHands().DoubleClick(screen, button);
    PumpUntilIdle();
}

void TypeIntoCell(wxGrid& grid, int row, int column, const std::string& text) {
    grid.GoToCell(row, column);
    grid.SetFocus();
    PumpUntilIdle();
    TypeText(text);
    PressKey("Return");
}

} // namespace testbench
