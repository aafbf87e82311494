// Editors, renderers and read-only state of a page's cells.
#pragma once

#include "editing/FrequencyCell.h"
#include "editing/ScanListCell.h"

/// Sets the editors, renderers, alignment and read-only state of all cells of page (0-based), which must be
/// the current one. Call when the page's target or its rows have changed. Columns have editors; a row has
/// some of its own if its band, mode or links require others. On P25 pages read-only marks of memories stay,
/// as linked rows rely on them.
void SetPageEditors(int page);

/// Does the work of SetPageEditors for one row of the current page, which must not be a P25 one.
void SetRowEditors(wxGrid* grid, int row);

/// Does the work of SetPageEditors for one row of the current page, which must be a P25 one.
void SetRowEditorsP25(wxGrid* grid, int row);

/// Sets the editors of a row's two frequencies for a band id (0 to 8).
void SetFrequencyEditors(wxGrid* grid, int row, int band);

/// Sets up the cells of a row that depend on its band (id 0 to 8). On MDLX pages, replaces texts that the
/// band can't have; bandChanged means that the user has just chosen the band, so a tone of the former band is
/// replaced, too. TCOD stays read-only if a former band made it so.
void SetBandEditors(wxGrid* grid, int row, int band, bool bandChanged = false);

/// On an MDLX page, sets the locks, choices and texts of a row to those of its band, after a command or a
/// check has set BAND. A row yet to be filled follows the default row, without texts. Does nothing on other
/// pages. May replace the editors of frequencies: don't call for a row whose frequency is being edited.
void FitRowToItsBand(wxGrid* grid, int row);

/// Calls FitRowToItsBand for the unused rows of an MDLX page, after the default row's band has changed.
void FitUnusedRowsToDefaultBand(wxGrid* grid);

/// Moves a row of an MDLX page to another band (id 0 to 8): clears its frequencies, which become invalid, and
/// sets up the cells that depend on the band.
void ChangeRowBand(wxGrid* grid, int row, int band);

/// Sets the squelch choices of a P25 row for the text of its MODE; applyDefault also writes the mode's
/// defaults.
void SetSquelchChoices(wxGrid* grid, int row, const wxString& mode, bool applyDefault);
