#include "bench/OperationRecord.h"

#include "catalogue/PageModel.h"
#include "editing/ZelkEditors.h"

namespace {

std::vector<wxGridCellCoords> PaintedCells() {
    std::vector<wxGridCellCoords> cells;
    for (int row = 1; row <= CurrentParameters().Rows; ++row)
        for (int col = 0; col < ColumnTotal; ++col)
            if (CurrentGrid()->GetCellBackgroundColour(row, col) == FailColour)
                cells.emplace_back(row, col);
    return cells;
}

} // namespace

void OperationRecord::Redo(wxGrid* grid) const {
    trace.Replay(grid);
    for (const wxGridCellCoords& cell : painted)
        grid->SetCellBackgroundColour(cell.GetRow(), cell.GetCol(), FailColour);
}

OperationRecord RecordOperation(const std::function<void()>& prepare,
                                const std::function<void()>& operation) {
    OperationRecord record;
    wxGrid* grid = CurrentGrid();
    record.before = ContentOfCurrentPage();
    auto* table = new TracingTable(*grid->GetTable());
    grid->SetTable(table, true);
    // The previous table took the attributes with it.
    SetPageEditors(CurrentPage);
    prepare();
    table->TakeTrace();
    operation();
    record.trace = table->TakeTrace();
    record.painted = PaintedCells();
    return record;
}
