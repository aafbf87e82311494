// Filling of empty cells in rows that come from a page of another type.
#pragma once

class wxGrid;

/// Fills the cells of a memory row of the current page, which must have data, that the row's former type had
/// no column for. Where the page shows RNSV, RONL, DESC or SCAN and the cell is empty, writes the default
/// row's text, painted; without it the row would be incomplete and not be saved. MNUM is never filled. On the
/// module's page, a BAND that the module doesn't have becomes the band of RFRQ, painted, if there is one, so
/// the frequencies stay. An empty TFRQ of an AM 108-138 row becomes its RFRQ, or "n/a" where transmitting is
/// not allowed, painted.
void FillMissingCells(wxGrid* grid, int row);
