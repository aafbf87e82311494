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
    // Meant: an edit that is given up leaves the row without its slot until the slots are counted anew.
    m_startZone = grid->GetCellValue(row, ZONE);
    ReleaseP25ZonePosition(FindZone(m_startZone));

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

bool P25ZoneEditor::EndEdit(int, int, const wxGrid*, const wxString&, wxString* newval) {
    if (IsGivenUp())
        return false;
    // Also a choice of the same zone counts: its slot was given back when the edit began.
    m_value = Combo()->GetValue();
    if (newval)
        *newval = m_value;
    return true;
}

void P25ZoneEditor::ApplyEdit(int row, int, wxGrid* grid) {
    const wxString before = grid->GetCellValue(row, ZONE);
    const int zone = FindZone(m_value);
    if (!TakeP25ZonePosition(zone))
        return;
    // A blank row has been filled since the edit began, and given a zone.
    if (before != m_startZone)
        ReleaseP25ZonePosition(FindZone(before));
    grid->SetCellValue(row, ZONE, m_value);
    // Like its shadows, a primary is never scanned, whatever its zone.
    grid->SetReadOnly(row, SCAN, zone == UnscannedZone || IsPrimary(grid, row));
    if (ReadHex(grid->GetCellValue(row, MFLG)) & ShadowLinkFlag) {
        const int number = ReadDecimal(grid->GetCellValue(row, MNUM));
        for (int shadow : ShadowRowsOf(grid, number))
            grid->SetCellValue(shadow, ZONE, grid->GetCellValue(number, ZONE));
    }
}
