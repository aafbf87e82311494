#include "editing/MissingCells.h"

#include "catalogue/PageModel.h"
#include "editing/ReplacedCells.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

/// True for cells that the row needs and no check fills. The filler column of O12 is no such cell, and
/// SCAN of a guard row is fixed by the radio.
bool NeedsText(int type, int row, int col) {
    if (ColumnWidth[type][col] == 0 || (type == O12 && col == RONL))
        return false;
    return !(col == SCAN && IsGuardRow(row));
}

} // namespace

void FillMissingCells(wxGrid* grid, int row) {
    for (int col : {RNSV, RONL, DESC, SCAN}) {
        if (!NeedsText(CurrentParameters().Type, row, col) || !grid->GetCellValue(row, col).empty())
            continue;
        grid->SetCellValue(row, col, grid->GetCellValue(0, col));
        grid->SetCellBackgroundColour(row, col, FailColour);
        ReplacedCells::Note(row, col);
    }
}
