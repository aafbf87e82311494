// Sizes of columns and rows in the fonts of a grid.
#pragma once

class wxGrid;

/// Returns the width in pixels of a column on pages of the radio type: that of RadioCatalogue::ColumnWidth
/// or, in a font whose texts need more, the width of the column's heading or widest possible text. 0 hides
/// it.
int ColumnWidthFor(const wxGrid* grid, int type, int col);

/// Returns the height in pixels of a row: 23, or more in a larger font.
int RowHeightFor(const wxGrid* grid);
