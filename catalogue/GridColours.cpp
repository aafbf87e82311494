#include "catalogue/GridColours.h"

#include "catalogue/Contrast.h"

#include <wx/grid.h>
#include <wx/settings.h>

void SetSelectionColours(wxGrid* grid) {
    // Users often read a page while all of it is selected. Without the focus the toolkit draws the text of
    // selected cells in the same colour on a grey of the theme.
    const wxColour text = ReadableOn(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW), *wxBLACK);
    grid->SetSelectionForeground(text);
    grid->SetSelectionBackground(text == *wxBLACK ? wxColour(178, 208, 240) : wxColour(36, 96, 168));
}

void FollowTheme(wxGrid* grid) {
    const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
    grid->SetDefaultCellBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    grid->SetDefaultCellTextColour(text);
    grid->SetCellHighlightColour(text);
    grid->SetLabelBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    grid->SetLabelTextColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT));
    grid->SetGridLineColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    SetSelectionColours(grid);
    ForgetCachedColours(grid);
    grid->ForceRefresh();
}

void ForgetCachedColours(wxGrid* grid) {
    for (int row = 0; row < grid->GetNumberRows(); ++row)
        for (int col = 0; col < grid->GetNumberCols(); ++col)
            grid->RefreshAttr(row, col);
}
