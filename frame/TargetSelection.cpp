#include "frame/TargetSelection.h"

#include "catalogue/GridShape.h"
#include "catalogue/PageCreation.h"
#include "commands/ErrorBox.h"
#include "editing/ZelkEditors.h"
#include "frame/SelectionDialogs.h"
#include "frame/ZelkGUI.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

/// Asks for one of the bands in BandList. Returns its position there, ResultCancelled or ResultBadBand.
int AskBand(OrvZELFrame* frame, int page) {
    BandDialog dialog(frame, "<-- Select Frequency Band -->", page);
    if (dialog.ShowModal() != wxID_OK)
        return ResultCancelled;
    const int slot = BandChoice->GetSelection();
    return slot >= 0 && slot < BandSlotTotal ? slot : ResultBadBand;
}

} // namespace

int UserSelectRadioAndBand(OrvZELFrame* frame, int page) {
    // The band dialog reads this dialog's choice, so this one must outlive it.
    RadioDialog dialog(frame, "<-- Select Target Radio -->", page);
    if (dialog.ShowModal() != wxID_OK)
        return ResultCancelled;
    const int radio = RadioChoice->GetSelection();
    if (radio < 0 || radio >= RadioTotal)
        return ResultBadRadio;

    int slot = 0;
    if (HasBandChoice(radio)) {
        MakeBandList(radio, BandList);
        slot = AskBand(frame, page);
        BandList.clear();
        if (slot < 0)
            return slot;
    }
    SetPageParameters(frame, page, radio, slot);
    return 0;
}

void AdjustEditGrid(OrvZELFrame*, int oldRadio, int oldBandIndex) {
    wxGridUpdateLocker quiet(CurrentGrid());
    FitGridToTarget(oldRadio, oldBandIndex);
    SetPageEditors(CurrentPage);
    CurrentGrid()->ForceRefresh();
}

void UpdatePage(OrvZELFrame* frame, int page, int oldRadio, int oldBandIndex) {
    if (PageParameters[page].Radio != oldRadio || PageParameters[page].BandIndex != oldBandIndex)
        AdjustEditGrid(frame, oldRadio, oldBandIndex);
    UpdateStatus(frame, page);
}
