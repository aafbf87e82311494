// Keys and clicks from within a test, each followed by the events it sets off.
#pragma once

#include <string>

#include <wx/gdicmn.h>

#include "robot/Pump.h"
#include "robot/ScreenSpots.h"

class wxGrid;
class wxTopLevelWindow;
class wxWindow;

namespace testbench {

// For actions that open no modal dialog or menu, or one that a DialogScript answers unseen; others are
// for RunWithRobot. All are to be called in the window thread.

/// Shows the window and waits until it has the keyboard; fails the test if that doesn't happen.
void ShowAndFocus(wxTopLevelWindow& window);

/// Types printable ASCII, line feeds as Return and tabs as Tab, into what has the keyboard.
void TypeText(const std::string& text);

/// Presses a key with modifiers, as Hands::Press: "Return", "Ctrl+C", "Shift+Tab".
void PressKey(const std::string& chord);

/// Clicks at a point of a window's client area. Buttons: 1 left, 2 middle, 3 right.
void ClickAt(const wxWindow& window, const wxPoint& client, int button = 1);
void DoubleClickAt(const wxWindow& window, const wxPoint& client, int button = 1);

/// Clicks at a point of the screen, as ScreenSpots.h gives.
void ClickAt(const wxPoint& screen, int button = 1);
void DoubleClickAt(const wxPoint& screen, int button = 1);

/// Puts the grid's cursor on a cell (0-based), types the text and ends with Return, as a person does.
void TypeIntoCell(wxGrid& grid, int row, int column, const std::string& text);

} // namespace testbench
