// What fills rows of a page, and what empties them.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <initializer_list>

class OrvZELFrame;

/// Writes the default row of the page; on a P25 page also fills rows 1, GD1 and GD2 from it, where they
/// have no data, and sets ZoneList for its generation. Works on the current page's grid where that is P25.
/// frame is not used and may be null.
void SetPageDefaults(OrvZELFrame* frame, int page);

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

/// Empties a row of the current page, takes the paint of repairs off it and makes its read-only cells
/// writable, SHAD excepted.
/// With releaseZone the zone of the row that MNUM names is given back; a row without a number
/// in 1 to Rows gives nothing back.
void ClearRowData(int row, bool releaseZone);
