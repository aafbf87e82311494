// What an operation of the program does to the current page, counted by watching it once.
#pragma once

#include "bench/CellTrace.h"
#include "bench/ToolkitFloor.h"

#include <functional>

struct OperationRecord {
    GridContent before;
    CellTrace trace;
    /// Without texts: the cells to which the operation gave a new editor or renderer, each once
    /// however often it did. Their alignments and read-only marks count as given with them.
    GridContent made;
};

/// Does the operation once, on the current page, and tells what it did. prepare comes before it and
/// is not told of. The page's grid goes on recording: drop the page.
OperationRecord RecordOperation(const std::function<void()>& prepare, const std::function<void()>& operation);
