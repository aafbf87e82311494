// Keys and clicks from within a test. Each call also processes the events that it causes.
#pragma once

#include "robot/Pump.h"
#include "robot/ScreenSpots.h"

#include <wx/gdicmn.h>

#include <string>

class wxGrid;
class wxTopLevelWindow;
class wxWindow;

namespace testbench {

// For actions that open no modal dialog or menu, or one that a DialogScript answers without showing
// it; use RunWithRobot for others. Call all of them in the window thread.

/// Shows the window and waits until it has the keyboard focus; fails the test otherwise.
void ShowAndFocus(wxTopLevelWindow& window);

/// Types printable ASCII into the focused control, line feeds as Return and tabs as Tab.
void TypeText(const std::string& text);

/// Presses a key with modifiers, as Hands::Press: "Return", "Ctrl+C", "Shift+Tab".
void PressKey(const std::string& chord);

/// Clicks at a point of a window's client area. Buttons: 1 left, 2 middle, 3 right.
void ClickAt(const wxWindow& window, const wxPoint& client, int button = 1);
void DoubleClickAt(const wxWindow& window, const wxPoint& client, int button = 1);

/// Clicks at a point of the screen, such as those of ScreenSpots.h.
void ClickAt(const wxPoint& screen, int button = 1);
void DoubleClickAt(const wxPoint& screen, int button = 1);

/// Moves the pointer from one point of the screen to another with the left button held down.
void DragFrom(const wxPoint& from, const wxPoint& to);

/// Puts the grid's cursor on a cell (0-based), types the text and ends with Return, as a user does.
void TypeIntoCell(wxGrid& grid, int row, int column, const std::string& text);

} // namespace testbench
