#include "editing/MissingCells.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "editing/FrequencyRules.h"
#include "editing/ReplacedCells.h"
#include "editing/RowBand.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

/// True for cells that the row needs and no check fills. False for the filler column of O12, and for SCAN of
/// a guard row, which the radio fixes.
bool NeedsText(int type, int row, int col) {
    if (ColumnWidth[type][col] == 0 || (type == O12 && col == RONL))
        return false;
    return !(col == SCAN && IsGuardRow(row));
}

void Fill(wxGrid* grid, int row, int col, const wxString& text) {
    grid->SetCellValue(row, col, text);
    PaintCell(grid, row, col, FailColour);
    ReplacedCells::Note(row, col);
}

/// Fills BAND from RFRQ. The check would set the default row's band, which would invalidate its frequencies.
void FillMissingBand(wxGrid* grid, int row) {
    if (CurrentParameters().Band != K6Module || IsK6Band(FindBand(grid->GetCellValue(row, BAND))))
        return;
    const int band = GetFreqBand(grid->GetCellValue(row, RFRQ), MDLX);
    if (!IsK6Band(band))
        return;
    Fill(grid, row, BAND, BandName[band]);
    FitRowToItsBand(grid, row);
}

/// The check accepts any transmit frequency in AM 108-138 rows, so an empty one would remain.
void FillMissingTransmitFrequency(wxGrid* grid, int row) {
    if (CurrentParameters().Type != MDLX || FindBand(grid->GetCellValue(row, BAND)) != Am108To138 ||
        !grid->GetCellValue(row, TFRQ).empty())
        return;
    const wxString receive = grid->GetCellValue(row, RFRQ);
    if (receive.empty())
        Fill(grid, row, TFRQ, grid->GetCellValue(0, TFRQ));
    else
        Fill(grid, row, TFRQ, CheckRxOnlyFreq(receive) ? wxString("n/a") : receive);
}

} // namespace

void FillMissingCells(wxGrid* grid, int row) {
    for (int col : {RNSV, RONL, DESC, SCAN})
        if (NeedsText(CurrentParameters().Type, row, col) && grid->GetCellValue(row, col).empty())
            Fill(grid, row, col, grid->GetCellValue(0, col));
    FillMissingBand(grid, row);
    FillMissingTransmitFrequency(grid, row);
}
