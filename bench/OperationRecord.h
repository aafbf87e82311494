// What an operation of the program does to texts and paint of the current page, written down while it runs
// once.
#pragma once

#include "bench/CellTrace.h"
#include "bench/ToolkitFloor.h"

#include <functional>
#include <vector>

struct OperationRecord {
    GridContent before;
    CellTrace trace;
    /// Cells of memories that are painted when the operation has ended.
    std::vector<wxGridCellCoords> painted;

    /// Does the same to the texts and paint of a grid of the same size that has the content before.
    void Redo(wxGrid* grid) const;
};

/// Does the operation once, on the current page, and tells what it did. prepare comes before it and
/// is not told of. The page's grid goes on recording: drop the page.
OperationRecord RecordOperation(const std::function<void()>& prepare, const std::function<void()>& operation);
