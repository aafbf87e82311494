// What tests of printing have in common.
#pragma once

#include "editing/RowLooks.h"
#include "files/ZelkPrinting.h"
#include "tests/files/ChannelFileTest.h"

/// All that a grid's look consists of.
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
    /// Every memory of the page, made from its default row.
    static void FillPage() {
        CurrentGrid()->SelectAll();
        CopyValuesToSelection(CurrentPage, GetRowValues(CurrentPage, 0), true, true);
    }

    static void SetLandscape() { PrintData->SetOrientation(wxLANDSCAPE); }
};
