// Screen positions that a person would point to.
#pragma once

#include <wx/gdicmn.h>

class wxGrid;
class wxWindow;

namespace testbench {

// All of these return screen coordinates. Call them in the window thread.

/// A point of a window's client area.
wxPoint SpotIn(const wxWindow& window, const wxPoint& client);

/// The middle of a window.
wxPoint MiddleOf(const wxWindow& window);

/// The middle of a grid's cell (0-based). Scrolls the cell into view first.
wxPoint CellSpot(wxGrid& grid, int row, int column);

/// The middle of a row's label. Scrolls the row into view first.
wxPoint RowLabelSpot(wxGrid& grid, int row);

/// The middle of a column's label. Scrolls the column into view first.
wxPoint ColumnLabelSpot(wxGrid& grid, int column);

/// The middle of the corner above the row labels.
wxPoint CornerSpot(const wxGrid& grid);

} // namespace testbench
