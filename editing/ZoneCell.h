// The ZONE cell of P25 pages.
#pragma once

#include <wx/grid.h>

/// Offers the zones of the current page that have room and moves the row's slot to the chosen one.
class P25ZoneEditor : public wxGridCellChoiceEditor {
public:
    /// count names to begin with, which are copied; each edit makes its own list.
    P25ZoneEditor(size_t count, const wxString names[], bool allowOthers = false)
        : wxGridCellChoiceEditor(count, names, allowOthers) {}

    void BeginEdit(int row, int col, wxGrid* grid) override;
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;
    void ApplyEdit(int row, int col, wxGrid* grid) override;
    /// Escape comes here before the edit ends.
    void Reset() override;
    wxGridCellEditor* Clone() const override { return new P25ZoneEditor(*this); }

private:
    wxString m_startZone;
    bool m_givenUp = false;
};
