#include "editing/PageReset.h"

#include "catalogue/PageModel.h"
#include "catalogue/RowFilling.h"
#include "catalogue/ZoneSlots.h"
#include "editing/CellMarks.h"

#include <wx/grid.h>

namespace {

void EmptyRow(wxGrid* grid, int row) {
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(row, col, "");
}

} // namespace

void EmptyDefaultMemories(int page) {
    if (!RadioCatalogue::IsP25Type(PageParameters[page].Type))
        return;
    for (int row : {1, GD1, GD2})
        if (row >= 0)
            EmptyRow(PageGrid[page], row);
    ClearZoneSlots(page);
}

void ResetPage(int page) {
    wxGrid* grid = PageGrid[page];
    wxGridUpdateLocker quiet(grid);
    grid->ClearGrid();
    PageParameters[page].Flags = 0;
    ClearMarksOfRows(grid);
    SetPageDefaults(nullptr, page);
    ClearZoneSlots(page);
}
