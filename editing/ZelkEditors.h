// Editors, renderers and read-only state of a page's cells.
#pragma once

class wxGrid;

/// Sets the editors, renderers, alignment and read-only state of all cells of page (0-based), which must be
/// the current one. Call when the page's target or its rows have changed. Columns have editors; a row has
/// some of its own if its band, mode or links require others. On P25 pages read-only marks of memories stay,
/// as linked rows rely on them.
void SetPageEditors(int page);

/// Does the work of SetPageEditors for one row of the current page, which must not be a P25 one.
void SetRowEditors(wxGrid* grid, int row);

/// Does the work of SetPageEditors for one row of the current page, which must be a P25 one.
void SetRowEditorsP25(wxGrid* grid, int row);
