// Checks of whole rows and pages. They repair an invalid value rather than refuse it.
#pragma once

#include "editing/ColumnChecks.h"

/// Checks every cell of a memory row (1 to Rows) of the current page, in column order. Skips a blank row.
void CheckRow(wxGrid* grid, int row);

/// Same, but looks up other rows with its number in numbers, and keeps numbers up to date. For checking many
/// rows of a page in sequence.
void CheckRow(wxGrid* grid, int row, MemoryNumberIndex& numbers);

/// Checks every memory row of the current page that has data, including guard rows. On a P25 page the zones
/// are recounted from the rows; a row keeps its zone if the zone has room.
void CheckPage();
