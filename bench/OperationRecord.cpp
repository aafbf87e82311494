#include "bench/OperationRecord.h"

#include "catalogue/PageModel.h"
#include "editing/RowLooks.h"
#include "editing/ZelkEditors.h"

#include <map>

namespace {

using CellPosition = std::pair<int, int>;

/// Editor and renderer of a cell. A reference is held, so that no new object gets the same address.
struct HeldObjects {
    wxGridCellEditorPtr editor;
    wxGridCellRendererPtr renderer;
};

std::map<CellPosition, HeldObjects> HoldObjects(wxGrid* grid) {
    std::map<CellPosition, HeldObjects> held;
    ForEachOwnAttribute(grid, [&](int row, int col, wxGridCellAttr& own) {
        HeldObjects& cell = held[{row, col}];
        if (own.HasEditor())
            cell.editor = own.GetEditorPtr(grid, row, col);
        if (own.HasRenderer())
            cell.renderer = own.GetRendererPtr(grid, row, col);
    });
    return held;
}

/// What of the page's content has editors or renderers other than those held.
GridContent MadeSince(const std::map<CellPosition, HeldObjects>& held) {
    const std::map<CellPosition, HeldObjects> now = HoldObjects(CurrentGrid());
    const auto editorIsNew = [&](const CellPosition& cell) {
        const auto before = held.find(cell), after = now.find(cell);
        return after != now.end() && after->second.editor &&
               (before == held.end() || before->second.editor.get() != after->second.editor.get());
    };
    const auto rendererIsNew = [&](const CellPosition& cell) {
        const auto before = held.find(cell), after = now.find(cell);
        return after != now.end() && after->second.renderer &&
               (before == held.end() || before->second.renderer.get() != after->second.renderer.get());
    };
    GridContent made = ContentOfCurrentPage();
    made.texts.clear();
    for (CellObjects& cell : made.objects) {
        if (!editorIsNew({cell.row, cell.col}))
            cell.editor = CellObjects::Editor::None;
        cell.renderer = rendererIsNew({cell.row, cell.col});
    }
    std::erase_if(made.objects, [](const CellObjects& cell) {
        return cell.editor == CellObjects::Editor::None && !cell.renderer;
    });
    std::erase_if(made.readOnly, [&](const CellPosition& cell) { return !editorIsNew(cell); });
    return made;
}

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
    WriteObjects(grid, made);
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
    // The attributes went with the former table.
    SetPageEditors(CurrentPage);
    const auto held = HoldObjects(grid);
    prepare();
    table->TakeTrace();
    operation();
    record.trace = table->TakeTrace();
    record.made = MadeSince(held);
    record.painted = PaintedCells();
    return record;
}
