// ZONE cell of P25 pages.
#pragma once

#include "editing/ListChoiceEditor.h"

/// Offers the zones of the current page that have room and moves the row's slot to the chosen one.
class P25ZoneEditor : public ListChoiceEditor {
public:
    /// count initial names, which are copied; each edit builds its own list.
    P25ZoneEditor(size_t count, const wxString names[], bool allowOthers = false)
        : ListChoiceEditor(count, names, allowOthers) {}

    void BeginEdit(int row, int col, wxGrid* grid) override;
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;
    void ApplyEdit(int row, int col, wxGrid* grid) override;
    std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) override;
    wxGridCellEditor* Clone() const override { return new P25ZoneEditor(*this); }

private:
    void OfferZones(int row, const wxGrid* grid);
    void TakeOwnSlotAgain(int row);

    wxString m_startZone;
    bool m_slotReleased = false;
};
