#include "robot/ScreenSpots.h"

#include <wx/grid.h>
#include <wx/window.h>

namespace testbench {

namespace {

/// Area of the cell in coordinates of the grid's cell window. Scrolls the cell into view.
wxRect CellInWindow(wxGrid& grid, int row, int column) {
    grid.MakeCellVisible(row, column);
    const wxRect cell = grid.CellToRect(row, column);
    return {grid.CalcScrolledPosition(cell.GetPosition()), cell.GetSize()};
}

wxPoint Middle(const wxRect& part) {
    return {part.x + part.width / 2, part.y + part.height / 2};
}

} // namespace

wxPoint SpotIn(const wxWindow& window, const wxPoint& client) {
    return window.ClientToScreen(client);
}

wxPoint MiddleOf(const wxWindow& window) {
    return SpotIn(window, Middle(wxRect(window.GetClientSize())));
}

wxPoint CellSpot(wxGrid& grid, int row, int column) {
    return SpotIn(*grid.GetGridWindow(), Middle(CellInWindow(grid, row, column)));
}

wxPoint RowLabelSpot(wxGrid& grid, int row) {
    const wxPoint inCells = Middle(CellInWindow(grid, row, grid.GetFirstFullyVisibleColumn()));
    return SpotIn(*grid.GetGridRowLabelWindow(), {grid.GetRowLabelSize() / 2, inCells.y});
}

wxPoint ColumnLabelSpot(wxGrid& grid, int column) {
    const wxPoint inCells = Middle(CellInWindow(grid, grid.GetFirstFullyVisibleRow(), column));
    return SpotIn(*grid.GetGridColLabelWindow(), {inCells.x, grid.GetColLabelSize() / 2});
}

wxPoint CornerSpot(const wxGrid& grid) {
    return MiddleOf(*grid.GetGridCornerLabelWindow());
}

} // namespace testbench
