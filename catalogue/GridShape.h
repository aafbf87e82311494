// Rows, columns, labels and sizes of a page's grid.
#pragma once

class wxGrid;

/// Sets up a new grid: rows and columns of page (0-based), and the sizes, labels, scrolling and selection
/// colours common to all pages.
void SetUpGrid(wxGrid* grid, int page);

/// Sets column sizes, minimal sizes and headings of a grid for a radio type.
void SetGridColumns(wxGrid* grid, int type);

/// Sets row labels "%03d" for positions 0 to last.
void SetGridRowLabels(wxGrid* grid, int last);

/// Changes the current page's grid from the row count of its former target to that of its present one, with
/// columns and labels of its present type. Leaves the editors as they are: the caller sets them once the rows
/// have their texts.
void FitGridToTarget(int oldRadio, int oldBandIndex);
