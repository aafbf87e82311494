// What an operation of the program does to the current page, counted by watching it once.
#pragma once

#include "bench/CellTrace.h"
#include "bench/ToolkitFloor.h"

#include <functional>
#include <vector>

struct OperationRecord {
    GridContent before;
    CellTrace trace;
    /// Without texts: the cells to which the operation gave a new editor or renderer, each once
    /// however often it did. Their alignments and read-only marks count as given with them.
    GridContent made;
    /// Cells of memories that are painted when the operation has ended.
    std::vector<wxGridCellCoords> painted;

    /// Does the same on a grid of the same size that has the content before.
    void Redo(wxGrid* grid) const;
};

/// Does the operation once, on the current page, and tells what it did. prepare comes before it and
/// is not told of. The page's grid goes on recording: drop the page.
OperationRecord RecordOperation(const std::function<void()>& prepare, const std::function<void()>& operation);
