// What a paste of cells did, for the report in the status bar.
#pragma once

#include "editing/ReplacedCells.h"

struct PasteOutcome {
    int taken = 0;       ///< cells that hold their text
    CellSet refused;     ///< cells whose text can't stand there
    int locked = 0;      ///< read-only cells
    int withoutRoom = 0; ///< texts beyond the last row or column

    /// Returns "12 cells pasted", "2 of 12 cells NOT PASTED from row 5", or "Nothing to paste".
    wxString Text() const;

    /// Returns a sentence for each kind of cells, with the refused cells by row and column.
    wxString Story() const;
};
