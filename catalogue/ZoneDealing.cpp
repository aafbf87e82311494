#include "catalogue/ZoneDealing.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

/// Zone index wanted for a row. The rows after the ordinary memories are guard rows and belong to the last
/// zone of their generation.
int WantedZone(int type, int row, const wxString& text) {
    if (type == RP25 && row > RP25Memories)
        return RP25GuardZone;
    if (type == NP25 && row > NP25Memories)
        return NP25GuardZone;
    const int firstFree = FirstFreeZone();
    const int named = FindZone(text);
    return named != wxNOT_FOUND && named >= firstFree ? named : firstFree;
}

} // namespace

bool DealZone(wxGrid* grid, int row, const wxString& wish) {
    const int type = CurrentParameters().Type;
    if (!IsP25Type(type)) {
        grid->SetCellValue(row, ZONE, wxString());
        return false;
    }
    if (row == 0) {
        grid->SetCellValue(row, ZONE, wish);
        return false;
    }
    const int transferFlags = TransferFlags(grid, row);
    if (transferFlags & ZoneTakenFlag)
        return false;
    wxString zone = wish;
    bool replaced = false;
    const int wanted = WantedZone(type, row, wish);
    if (IsShadow(grid, row)) {
        zone.clear();
    } else if (TakeP25ZonePosition(wanted)) {
        zone = GetZoneName(wanted);
        replaced = !wish.empty() && wish != zone && !IsGuardRow(row);
    }
    // Intentional: the flag is set also when the zone was full and the row got no slot.
    grid->SetCellValue(row, TFLG, FlagText(transferFlags | ZoneTakenFlag));
    grid->SetCellValue(row, ZONE, zone);
    return replaced;
}
