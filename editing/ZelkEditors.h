// The read-only state of cells, and the scan cell.
#pragma once

#include <wx/string.h>

class wxGrid;

/// Sets the read-only state of the cells of page (0-based), which must be the current one: MNUM
/// of the default row, and in guard rows the cells that the radio fixes.
void SetPageEditors(int page);

/// Puts text into a scan cell.
void SetScanCell(wxGrid* grid, int row, int col, const wxString& text, bool flag);
