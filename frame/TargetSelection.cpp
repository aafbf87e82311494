#include "frame/TargetSelection.h"

#include "catalogue/PageCreation.h"
#include "editing/ZelkEdit.h"
#include "editing/ZelkEditors.h"
#include "frame/Messages.h"
#include "frame/PageLifecycle.h"
#include "frame/SelectionDialogs.h"
#include "frame/ZelkMain.h"

#include <wx/grid.h>
#include <wx/msgdlg.h>

using namespace RadioCatalogue;

wxString PortName = "none";

namespace {

/// Radios before this one have a single band.
constexpr int FirstRadioWithBandChoice = 9;

/// Asks for one of the bands in BandList: a position there, or ResultCancelled, or ResultBadBand.
int AskBand(OrvZELFrame* frame, int page) {
    BandDialog dialog(frame, "<-- Select Frequency Band -->", page);
    if (dialog.ShowModal() != wxID_OK)
        return ResultCancelled;
    const int slot = BandChoice->GetSelection();
    return slot >= 0 && slot < BandSlotTotal ? slot : ResultBadBand;
}

} // namespace

int UserSelectRadioAndBand(OrvZELFrame* frame, int page) {
    // The band dialog looks into this one's choice, so it lives to the end.
    RadioDialog dialog(frame, "<-- Select Target Radio -->", page);
    if (dialog.ShowModal() != wxID_OK)
        return ResultCancelled;
    const int radio = RadioChoice->GetSelection();
    if (radio < 0 || radio >= RadioTotal)
        return ResultBadRadio;

    int slot = 0;
    if (radio >= FirstRadioWithBandChoice) {
        MakeBandList(radio, BandList);
        slot = AskBand(frame, page);
        BandList.clear();
        if (slot < 0)
            return slot;
    }
    SetPageParameters(frame, page, radio, slot);
    return 0;
}

void ZelkFrame::OnSetPort(wxCommandEvent&) {
    PortDialog dialog(this, "<-- Select Serial Port -->");
    if (dialog.ShowModal() == wxID_OK) {
        PortName = dialog.GetValue();
        SetStatusText(PortName, 4);
    }
    PortList.clear();
}

void ZelkFrame::OnSetTarget(wxCommandEvent&) {
    CommitOpenEditor();
    wxMessageDialog question(this,
                             "If there is data on this page,\nthis may result in invalid configuration!",
                             "Change Target?", wxOK | wxCANCEL);
    if (question.ShowModal() != wxID_OK)
        return;

    const PageParameterRecord before = CurrentParameters();
    const bool wasP25 = CurrentPageIsP25();
    const int oldGuards[] = {GD1, GD2};
    const bool hadGuards = HasGuardRows(CurrentPage);
    const bool guardsSaved = hadGuards && (RowHasData(GD1) || RowHasData(GD2));
    if (guardsSaved)
        SaveGuardRows(this);

    const int result = UserSelectRadioAndBand(this, CurrentPage);
    if (result == ResultCancelled)
        return;
    if (result != 0) {
        DisplayError(result, 0);
        return;
    }

    wxGridUpdateLocker quiet(CurrentGrid());
    if (hadGuards)
        for (int row : oldGuards)
            ClearRowData(row, wasP25);
    if (before.Radio != CurrentParameters().Radio || before.BandIndex != CurrentParameters().BandIndex)
        AdjustEditGrid(this, before.Radio, before.BandIndex);
    else
        // Clearing has unlocked the cells that the radio fixes in its guard rows.
        SetPageEditors(CurrentPage);
    SetPageDefaults(this, CurrentPage);
    if (guardsSaved && HasGuardRows(CurrentPage))
        RestoreGuardRows(this, true);
    UpdateStatus(this, CurrentPage);
    CheckPage();
}
