// Record of what a program operation does to texts and paint of the current page, taken during one run.
#pragma once

#include "bench/CellTrace.h"
#include "bench/ToolkitFloor.h"

#include <functional>
#include <vector>

struct OperationRecord {
    GridContent before;
    CellTrace trace;
    /// Cells of memories that are painted after the operation.
    std::vector<wxGridCellCoords> painted;

    /// Applies the same changes to the texts and paint of a grid of the same size that has the content
    /// `before`.
    void Redo(wxGrid* grid) const;
};

/// Runs the operation once, on the current page, and returns what it did. prepare runs first and isn't
/// recorded. The page's grid keeps recording: drop the page.
OperationRecord RecordOperation(const std::function<void()>& prepare, const std::function<void()>& operation);
