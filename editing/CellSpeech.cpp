#include "editing/CellSpeech.h"

#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "editing/CellText.h"
#include "editing/ScanListCell.h"

#include <wx/grid.h>

namespace {

/// Returns the text that a cell shows, with its scan lists in words.
wxString SpokenText(const wxGrid& grid, int row, int col) {
    const wxGridCellRendererPtr renderer(grid.GetCellRenderer(row, col));
    if (dynamic_cast<ScanlistRenderer*>(renderer.get()))
        return SpokenScanLists(GetScanMask(&grid, row, col));
    return ShownText(&grid, row, col);
}

} // namespace

wxString SpokenPlace(const SeenCell& cell) {
    const wxString row = cell.row == 0 ? wxString("Default row") : wxString::Format("Row %d", cell.row);
    return cell.heading.empty() ? row : row + ", " + cell.heading;
}

wxString SpokenCell(const SeenCell& cell) {
    wxString words = SpokenPlace(cell) + ", " + (cell.text.empty() ? wxString("empty") : cell.text);
    if (cell.isRepaired)
        words += ", repaired";
    if (cell.isMarked)
        words += ", marked";
    if (cell.isReadOnly)
        words += ", read only";
    if (cell.isSelected && cell.firstSelected < cell.lastSelected)
        words += wxString::Format(", rows %d to %d selected", cell.firstSelected, cell.lastSelected);
    else if (cell.isSelected)
        words += ", selected";
    return words;
}

wxString SpokenScanLists(int mask) {
    if (mask < 0)
        return {};
    wxString lists;
    int count = 0;
    for (int list = 0; mask >> list; ++list)
        if (mask >> list & 1) {
            lists += wxString::Format(count ? ", %d" : " %d", list + 1);
            ++count;
        }
    if (count == 0)
        return "no list";
    return (count == 1 ? "list" : "lists") + lists;
}

SeenCell SeeCell(const wxGrid& grid, int row, int col) {
    const wxColour paint = TableOf(&grid).LookOf(row, col).paint;
    SeenCell cell{.row = row,
                  .heading = grid.GetColLabelValue(col),
                  .text = SpokenText(grid, row, col),
                  .isRepaired = paint == FailColour,
                  .isMarked = paint == MarkColour,
                  .isReadOnly = grid.IsReadOnly(row, col),
                  .isSelected = grid.IsInSelection(row, col)};
    for (const wxGridBlockCoords& block : grid.GetSelectedBlocks())
        if (block.Contains(wxGridCellCoords(row, col))) {
            cell.firstSelected = block.GetTopRow();
            cell.lastSelected = block.GetBottomRow();
        }
    return cell;
}
