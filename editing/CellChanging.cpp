// What a new value in a cell does to its row, whatever its column.
#include "catalogue/PageModel.h"
#include "catalogue/RowFilling.h"
#include "frame/ZelkMain.h"

void ZelkFrame::OnGridCellChanging(wxGridEvent& event) {
    wxGrid* grid = CurrentGrid();
    const int row = event.GetRow();
    // Every kind of cell announces its new value here; editors see to the cells that they carry it to.
    TakePaintOff(grid, row, event.GetCol());
    if (!grid->GetCellValue(row, TFLG).empty())
        return;
    // The typed value comes into its cell after this event, over the default.
    wxGridUpdateLocker quiet(grid);
    FillRowsFromDefault({row});
    grid->SelectRow(row, false);
}
