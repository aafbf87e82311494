// Rows, columns, labels and sizes of a page's grid.
#pragma once

class wxGrid;

/// Gives a bare grid the rows and columns of page (0-based) and what all pages have in common: sizes, labels,
/// scrolling, colours of a selection.
void SetUpGrid(wxGrid* grid, int page);

/// Column sizes, minimal sizes and headings of a grid for a radio type.
void SetGridColumns(wxGrid* grid, int type);

/// Row labels "%03d" for positions 0 to last.
void SetGridRowLabels(wxGrid* grid, int last);

/// Brings the current page's grid from the row count of its former target to that of its
/// present one, with columns and labels of its present type. Leaves the editors as they are: the caller sets
/// them once the rows have their texts.
void FitGridToTarget(int oldRadio, int oldBandIndex);
