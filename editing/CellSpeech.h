// The words in which a screen reader tells a cell.
#pragma once

#include <wx/string.h>

class wxGrid;

/// What a user sees of a cell, and of the selection that it is in.
struct SeenCell {
    int row = 0;
    wxString heading = {}; ///< of the column, empty if it has none
    wxString text = {};    ///< as shown
    bool isRepaired = false;
    bool isMarked = false; ///< in a row that is marked for column edits
    bool isReadOnly = false;
    bool isSelected = false;
    /// First and last row of the selected block around the cell.
    int firstSelected = 0, lastSelected = 0;
};

/// Returns "Row 3, RxFreq, 154.4525, repaired". Row 0 is the "default row".
wxString SpokenCell(const SeenCell& cell);

/// Returns the name of the editor of a cell, "Row 3, RxFreq".
wxString SpokenPlace(const SeenCell& cell);

/// Returns the scan lists of a mask (0 to 31) as "lists 1, 3"; empty for -1, the mask of a blank row.
wxString SpokenScanLists(int mask);

/// Reads a cell of the current page.
SeenCell SeeCell(const wxGrid& grid, int row, int col);
