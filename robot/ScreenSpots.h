// Where on the screen a person would point to.
#pragma once

#include <wx/gdicmn.h>

class wxGrid;
class wxWindow;

namespace testbench {

// All of these give screen coordinates and are to be called in the window thread.

/// A point of a window's client area.
wxPoint SpotIn(const wxWindow& window, const wxPoint& client);

/// The middle of a window.
wxPoint MiddleOf(const wxWindow& window);

/// The middle of a grid's cell (0-based); the cell is scrolled into sight first.
wxPoint CellSpot(wxGrid& grid, int row, int column);

/// The middle of a row's label; the row is scrolled into sight first.
wxPoint RowLabelSpot(wxGrid& grid, int row);

/// The middle of a column's label; the column is scrolled into sight first.
wxPoint ColumnLabelSpot(wxGrid& grid, int column);

/// The middle of the corner above the row labels.
wxPoint CornerSpot(const wxGrid& grid);

} // namespace testbench
