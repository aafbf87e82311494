// What each cell of a page is edited and shown with, and which cells are read-only.
#pragma once

#include "editing/FrequencyCell.h"
#include "editing/ScanListCell.h"

/// Gives all cells of page (0-based), which must be the current one, their editors, renderers,
/// alignment and read-only state; to be called when the page's target or its rows have changed. Columns have
/// editors; a row has some of its own where its band, its mode or its links ask for others. On P25 pages
/// read-only marks of memories stay, as linked rows rely on them.
void SetPageEditors(int page);

/// What SetPageEditors does to one row of a current page that isn't P25.
void SetRowEditors(wxGrid* grid, int row);

/// What SetPageEditors does to one row of a P25 current page.
void SetRowEditorsP25(wxGrid* grid, int row);

/// The editors of a row's two frequencies, for a band id (0 to 8).
void SetFrequencyEditors(wxGrid* grid, int row, int band);

/// The cells of a row that depend on its band (id 0 to 8). On MDLX pages texts that the band can't
/// have are replaced; bandChanged says that the user has just chosen the band, so that a tone of
/// the former band goes, too. TCOD stays read-only if a former band has made it so.
void SetBandEditors(wxGrid* grid, int row, int band, bool bandChanged = false);

/// On an MDLX page: makes locks, choices and texts of a row those of its band, after BAND has come by a
/// command or a check. A row that is still to be filled takes after the default row, without texts. Nothing
/// on other pages. May replace the editors of frequencies: not for a row whose frequency is being edited.
void FitRowToItsBand(wxGrid* grid, int row);

/// FitRowToItsBand for the rows of an MDLX page that were never used, after the default row's band has
/// changed.
void FitUnusedRowsToDefaultBand(wxGrid* grid);

/// Puts a row of an MDLX page on another band (id 0 to 8): its frequencies can't stay and are emptied,
/// and the cells that depend on the band become those of the new one.
void ChangeRowBand(wxGrid* grid, int row, int band);

/// The squelch choices of a P25 row for the text of its MODE; applyDefault also writes the mode's
/// defaults.
void SetSquelchChoices(wxGrid* grid, int row, const wxString& mode, bool applyDefault);
