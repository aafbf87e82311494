// Checks of whole rows and pages: they repair a value that can't stand rather than refuse it.
#pragma once

#include "editing/ColumnChecks.h"

/// Checks every cell of a memory row (1 to Rows) of the current page, in the order of the columns. A
/// blank row stays blank.
void CheckRow(wxGrid* grid, int row);

/// The same, looking for other rows of its number in numbers, which it keeps up to date. For many rows of
/// a page one after the other.
void CheckRow(wxGrid* grid, int row, MemoryNumberIndex& numbers);

/// Checks every memory row of the current page that has data, guard rows included. On a P25 page the
/// zones are counted anew from the rows; a row keeps its zone as far as there is room in it.
void CheckPage();
