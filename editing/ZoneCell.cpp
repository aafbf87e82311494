#include "editing/ZoneCell.h"

#include "catalogue/PageModel.h"
#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/Shadows.h"

#include <wx/combobox.h>

using namespace RadioCatalogue;

namespace {

/// The zone of second generation radios that is never scanned.
constexpr int UnscannedZone = 31;

/// True when the row is linked as primary. A copy of one has its flag, but no links.
bool IsPrimary(wxGrid* grid, int row) {
    return (ReadHex(grid->GetCellValue(row, MFLG)) & ShadowLinkFlag) &&
           grid->GetCellValue(row, SHAD).StartsWith("P-");
}

} // namespace

void P25ZoneEditor::BeginEdit(int row, int col, wxGrid* grid) {
    // The last zone of a first generation radio belongs to its guard rows.
    const int limit = CurrentParameters().Type == RP25 ? 14 : UnscannedZone;
    // The row holds no slot while the edit runs, so that its own zone is offered when that is full.
    m_startZone = grid->GetCellValue(row, ZONE);
    m_slotReleased = ReleaseP25ZonePosition(ZoneList.Index(m_startZone));

    const bool scanned = grid->GetCellValue(row, SCAN) == "Y";
    const int32_t* slots = ZoneSlotsOf(CurrentPage);
    wxString names;
    for (int zone = 0; zone <= limit; ++zone) {
        if (slots[zone] == ZoneCapacity || (zone == UnscannedZone && scanned))
            continue;
        if (!names.empty())
            names += ',';
        names += ZoneNames32[zone];
    }
    SetParameters(names);
    if (names.empty()) {
        // No parameters have left the former list.
        m_choices.clear();
        Combo()->Clear();
    }
    ListChoiceEditor::BeginEdit(row, col, grid);
}

bool P25ZoneEditor::EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) {
    if (ListChoiceEditor::EndEdit(row, col, grid, oldval, newval))
        return true;
    if (m_slotReleased)
        TakeP25ZonePosition(ZoneList.Index(m_startZone));
    return false;
}

void P25ZoneEditor::ApplyEdit(int row, int, wxGrid* grid) {
    const wxString before = grid->GetCellValue(row, ZONE);
    const int zone = ZoneList.Index(m_value);
    if (!TakeP25ZonePosition(zone))
        return;
    // A blank row has been filled since the edit began, and given a zone.
    if (before != m_startZone)
        ReleaseP25ZonePosition(ZoneList.Index(before));
    grid->SetCellValue(row, ZONE, m_value);
    // Like its shadows, a primary is never scanned, whatever its zone.
    grid->SetReadOnly(row, SCAN, zone == UnscannedZone || IsPrimary(grid, row));
    if (ReadHex(grid->GetCellValue(row, MFLG)) & ShadowLinkFlag) {
        const int number = ReadDecimal(grid->GetCellValue(row, MNUM));
        for (int shadow : ShadowRowsOf(grid, number))
            grid->SetCellValue(shadow, ZONE, grid->GetCellValue(number, ZONE));
    }
}
