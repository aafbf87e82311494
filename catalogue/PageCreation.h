// How a page comes into being: its parameters, its widgets, its default row.
#pragma once

#include "catalogue/PageModel.h"

/// Fills parameters and texts of page (0-based) for a radio index and a band slot, forgets its
/// file, and sets GD1 and GD2 for it. The page flags that become 0 are those of the current
/// page, which need not be this one.
void SetPageParameters(OrvZELFrame* frame, int page, int radio, int bandIndex);

/// Builds panel, grid and tab of page, which must be the next free number. Its parameters must
/// have been set. The page becomes the current one.
void CreateNewPage(OrvZELFrame* frame, int page);

/// Writes the default row of the page; on a P25 page also fills rows 1, GD1 and GD2 from it, where they
/// have no data, and sets ZoneList for its generation. Works on the current page's grid where that is P25.
void SetPageDefaults(OrvZELFrame* frame, int page);

/// Tells the log, which is silent unless somebody turns it on, what page is for.
void ShowPageParameters(OrvZELFrame* frame, int page);

/// Column sizes, minimal sizes and headings of a grid for a radio type.
void SetGridColumns(wxGrid* grid, int type);

/// Row labels "%03d" for positions 0 to last.
void SetGridRowLabels(wxGrid* grid, int last);

/// Writes a row image into every selected memory row of the page: columns 0 to 31 with
/// allColumns, else 0 to 29. The paint of repairs goes. A DESC that ends in digits is numbered with the row.
/// With renumber MNUM, and PRIM on a P25 page, become the row number. P25 rows get a zone. Ends with no
/// selection.
void CopyValuesToSelection(int page, const wxArrayString& values, bool renumber, bool allColumns);

/// Writes a row image into one memory row of the page as CopyValuesToSelection does with renumber and
/// allColumns, whatever is selected.
void CopyValuesToRow(int page, const wxArrayString& values, int row);

/// Fills the given memory rows of the current page from its default row, as a person does who
/// begins to type into a blank one. Rows that are selected at that moment stay as they are.
void FillRowsFromDefault(std::initializer_list<int> rows);

/// The text that DESC is numbered from: text without its trailing digits, cut to width - 3
/// characters. Nothing when text doesn't end in a digit.
bool NumberedDescription(const wxString& text, int width, wxString& base);
