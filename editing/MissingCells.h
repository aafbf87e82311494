// Cells without a text in rows that come from a page of another type.
#pragma once

class wxGrid;

/// Gives a memory row of the current page that has data what its former type had no column for: where the
/// page shows RNSV, RONL, DESC or SCAN and the cell is empty, the default row's text, painted. Without them
/// the row would be incomplete and not be saved. MNUM is never filled.
void FillMissingCells(wxGrid* grid, int row);
