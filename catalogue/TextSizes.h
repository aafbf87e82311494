// Sizes of columns, rows and fields in the font in use.
#pragma once

class wxGrid;
class wxWindow;

/// Returns the width in pixels of a column on pages of the radio type: that of RadioCatalogue::ColumnWidth
/// or, in a font whose texts need more, the width of the column's heading or widest possible text. 0 hides
/// it.
int ColumnWidthFor(const wxGrid* grid, int type, int col);

/// Returns the height in pixels of a row: 23, or more in a larger font.
int RowHeightFor(const wxGrid* grid);

/// Returns the height in pixels that a field for one line of text needs. The toolkit's best size for such a
/// field is too low in larger fonts.
int FieldHeightFor(const wxWindow* field);
