#include "editing/ZelkEdit.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

/// The zone index that a row is to have. The rows behind the ordinary memories, which are the
/// guard rows, belong to the last zone of their generation.
int WantedZone(int type, int row, const wxString& text) {
    if (type == RP25 && row > 230)
        return 15;
    if (type == NP25 && row > 500)
        return 31;
    const int firstFree = FirstFreeZone();
    const int named = ZoneList.Index(text);
    return named != wxNOT_FOUND && named >= firstFree ? named : firstFree;
}

} // namespace

void CheckZone(wxGrid* grid, int row, wxString text) {
    const int type = CurrentParameters().Type;
    if (!IsP25Type(type)) {
        grid->SetCellValue(row, ZONE, "");
        return;
    }
    if (row != 0) {
        const int transferFlags = ReadHex(grid->GetCellValue(row, TFLG));
        if (transferFlags & ZoneTakenFlag)
            return;
        const int wanted = WantedZone(type, row, text);
        if (ReadHex(grid->GetCellValue(row, MFLG)) & ShadowIndexMask)
            text.clear();
        else if (TakeP25ZonePosition(wanted))
            text = GetZoneName(wanted);
        // Meant: the flag is set also when the zone was full and the row got no slot.
        grid->SetCellValue(row, TFLG, FlagText(transferFlags | ZoneTakenFlag));
    }
    grid->SetCellValue(row, ZONE, text);
}

void CheckBand(wxGrid* grid, int row, const wxString& text) {
    const PageParameterRecord& page = CurrentParameters();
    if (page.Type != MDLX) {
        grid->SetCellValue(row, BAND, "");
        return;
    }
    const int band = FindBand(text);
    // Meant: a band that can stand is not written, the cell keeps what it holds.
    if (band >= 0 && (page.Band == 9 || band == 0 || band == 2 || band == 6))
        return;
    grid->SetCellValue(row, BAND, grid->GetCellValue(0, BAND));
    grid->SetCellBackgroundColour(row, BAND, FailColour);
}
