// Common base of the printing tests.
#pragma once

#include "editing/CellMarks.h"
#include "files/ZelkPrinting.h"
#include "tests/files/ChannelFileTest.h"

/// Everything that makes up a grid's look.
struct GridLook {
    wxColour line, labelBackground, labelText, cellBackground, cellText;
    wxFont label, cell;

    bool operator==(const GridLook&) const = default;
};

inline GridLook LookOf(const wxGrid& grid) {
    return {grid.GetGridLineColour(),        grid.GetLabelBackgroundColour(),
            grid.GetLabelTextColour(),       grid.GetDefaultCellBackgroundColour(),
            grid.GetDefaultCellTextColour(), grid.GetLabelFont(),
            grid.GetDefaultCellFont()};
}

class PrintTest : public ChannelFileTest {
protected:
    /// Fills every memory of the page from its default row.
    static void FillPage() {
        CurrentGrid()->SelectAll();
        CopyValuesToSelection(CurrentPage, GetRowValues(CurrentPage, 0), true, true);
    }

    static void SetLandscape() { PrintData->SetOrientation(wxLANDSCAPE); }
};
