#include "editing/ZoneCell.h"

#include "catalogue/PageModel.h"
#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/ScanLock.h"
#include "editing/Shadows.h"

#include <wx/combobox.h>

using namespace RadioCatalogue;

namespace {

/// Takes a slot of the zone for a row.
/// Intentional: the default row holds no slot, so none is taken or released.
bool TakeZone(int row, int zone) {
    return row == 0 ? zone != wxNOT_FOUND : TakeP25ZonePosition(zone);
}

bool ReleaseZone(int row, const wxString& name) {
    return row != 0 && ReleaseP25ZonePosition(FindZone(name));
}

} // namespace

void P25ZoneEditor::OfferZones(int row, const wxGrid* grid) {
    // The last zone of a first generation radio is reserved for its guard rows.
    const int limit = CurrentParameters().Type == RP25 ? RP25GuardZone - 1 : NP25GuardZone;
    // The row's slot is released during the edit, so that its own zone is offered even if full.
    m_startZone = grid->GetCellValue(row, ZONE);
    m_slotReleased = ReleaseZone(row, m_startZone);

    const bool scanned = grid->GetCellValue(row, SCAN) == "Y";
    // A memory's own zone has room now. The default row's may be full, but is offered anyway.
    const int ownOfDefaultRow = row == 0 ? FindZone(m_startZone) : wxNOT_FOUND;
    const int32_t* slots = ZoneSlotsOf(CurrentPage);
    m_choices.clear();
    for (int zone = 0; zone <= limit; ++zone) {
        const bool full = slots[zone] == ZoneCapacity && zone != ownOfDefaultRow;
        if (!full && !(zone == NP25GuardZone && scanned))
            m_choices.push_back(ZoneNames32[zone]);
    }
}

void P25ZoneEditor::TakeOwnSlotAgain(int row) {
    if (m_slotReleased)
        TakeZone(row, FindZone(m_startZone));
}

void P25ZoneEditor::BeginEdit(int row, int col, wxGrid* grid) {
    OfferZones(row, grid);
    Combo()->Set(m_choices);
    ListChoiceEditor::BeginEdit(row, col, grid);
}

std::optional<wxString> P25ZoneEditor::HoldText(int row, int col, wxGrid* grid, const wxString& text) {
    OfferZones(row, grid);
    std::optional<wxString> held = ListChoiceEditor::HoldText(row, col, grid, text);
    if (!held)
        TakeOwnSlotAgain(row);
    return held;
}

bool P25ZoneEditor::EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) {
    if (ListChoiceEditor::EndEdit(row, col, grid, oldval, newval))
        return true;
    TakeOwnSlotAgain(row);
    return false;
}

void P25ZoneEditor::ApplyEdit(int row, int, wxGrid* grid) {
    const wxString before = grid->GetCellValue(row, ZONE);
    const int zone = FindZone(m_value);
    if (!TakeZone(row, zone))
        return;
    // A blank row was filled after the edit began, and got a zone.
    if (before != m_startZone)
        ReleaseZone(row, before);
    grid->SetCellValue(row, ZONE, m_value);
    SetScanLock(grid, row);
    if (IsPrimary(grid, row)) {
        const int number = ReadDecimal(grid->GetCellValue(row, MNUM));
        for (int shadow : ShadowRowsOf(grid, number))
            grid->SetCellValue(shadow, ZONE, grid->GetCellValue(number, ZONE));
    }
}
