// Cells without a text in rows that come from a page of another type.
#pragma once

class wxGrid;

/// Gives a memory row of the current page that has data what its former type had no column for: where the
/// page shows RNSV, RONL, DESC or SCAN and the cell is empty, the default row's text, painted. Without them
/// the row would be incomplete and not be saved. MNUM is never filled. On the module's page a BAND that the
/// module hasn't becomes the one that RFRQ lies in, painted, if there is one: the frequencies stay; an
/// empty TFRQ of an AM 108-138 row becomes its RFRQ, or "n/a" where nobody may transmit, painted.
void FillMissingCells(wxGrid* grid, int row);
