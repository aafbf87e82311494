// Effects of a new cell value on its row, in any column.
#include "catalogue/PageModel.h"
#include "catalogue/RowFilling.h"
#include "frame/ZelkMain.h"

void ZelkFrame::OnGridCellChanging(wxGridEvent& event) {
    wxGrid* grid = CurrentGrid();
    const int row = event.GetRow();
    // Every kind of cell reports its new value here; editors handle the other cells they write to.
    TakePaintOff(grid, row, event.GetCol());
    if (!grid->GetCellValue(row, TFLG).empty())
        return;
    // The typed value is written after this event, over the default.
    wxGridUpdateLocker quiet(grid);
    FillRowsFromDefault({row});
    grid->SelectRow(row, false);
}
