// What a row's band requires of its cells: editors, read-only state and texts.
#pragma once

#include "editing/FrequencyCell.h"

/// Returns the editor that all frequencies of a band id (0 to 8) share on the current page.
wxGridCellEditorPtr FrequencyEditorOf(wxGrid* grid, int band);

/// Sets the editors of a row's two frequencies for a band id (0 to 8).
void SetFrequencyEditors(wxGrid* grid, int row, int band);

/// Sets up the cells of a row that depend on its band (id 0 to 8). On MDLX pages, replaces texts that the
/// band can't have; bandChanged means that the user has just chosen the band, so a tone of the former band is
/// replaced, too. TCOD stays read-only if a former band made it so.
void SetBandEditors(wxGrid* grid, int row, int band, bool bandChanged = false);

/// Unlocks cells that the page's former radio, or rows that have moved, may have left read-only. The page
/// must not be a P25 one.
void UnlockRow(wxGrid* grid, int row);

/// Sets what the cells of a row need besides their columns' editors. The page must not be a P25 one.
void FitRow(wxGrid* grid, int row);

/// On an MDLX page, sets the locks, choices and texts of a row to those of its band, after a command or a
/// check has set BAND. A row yet to be filled follows the default row, without texts. Does nothing on other
/// pages. May replace the editors of frequencies: don't call for a row whose frequency is being edited.
void FitRowToItsBand(wxGrid* grid, int row);

/// Calls FitRowToItsBand for the unused rows of an MDLX page, after the default row's band has changed.
void FitUnusedRowsToDefaultBand(wxGrid* grid);

/// Moves a row of an MDLX page to another band (id 0 to 8): clears its frequencies, which become invalid, and
/// sets up the cells that depend on the band.
void ChangeRowBand(wxGrid* grid, int row, int band);
