// Functions that fill and empty rows of a page.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <initializer_list>

class OrvZELFrame;

/// Writes the default row of the page. On a P25 page, also fills those of rows 1, GD1 and GD2 that have no
/// data, and sets ZoneList for its generation; this part works on the current page. frame is not used and may
/// be null.
void SetPageDefaults(OrvZELFrame* frame, int page);

/// Writes a row image into every selected memory row of the page: columns 0 to 31 with allColumns, else 0 to
/// 29. Removes the paint of repairs. A DESC that ends in digits gets the row number instead of them. With
/// renumber, MNUM becomes the row number, and so does PRIM on a P25 page. P25 rows get a zone. Clears the
/// selection at the end.
void CopyValuesToSelection(int page, const wxArrayString& values, bool renumber, bool allColumns);

/// Writes a row image into one memory row of the page, as CopyValuesToSelection does with renumber and
/// allColumns, whatever is selected.
void CopyValuesToRow(int page, const wxArrayString& values, int row);

/// Fills the given memory rows of the current page from its default row, as when a user begins to type into a
/// blank one. Other rows stay as they are, even if they are selected.
void FillRowsFromDefault(std::initializer_list<int> rows);

/// Sets base to the text that DESC is numbered from: text without its trailing digits, cut to width - 3
/// characters. Returns false and leaves base alone when text doesn't end in a digit.
bool NumberedDescription(const wxString& text, int width, wxString& base);

/// Empties a row of the current page, removes the paint of repairs and makes its read-only cells writable,
/// except SHAD.
/// With releaseZone, releases the zone slot of the row that MNUM names; releases nothing when MNUM holds no
/// number in 1 to Rows.
void ClearRowData(int row, bool releaseZone);
