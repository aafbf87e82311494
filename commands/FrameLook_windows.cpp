#include "commands/FrameLook.h"

#include <wx/frame.h>
#include <wx/settings.h>

// Both would be shown for good, around the whole window.
const long FrameScrollBars = 0;

namespace {

/// Frames have the dark colour of windows that hold documents.
void TakeDialogColour(wxFrame& frame) {
    frame.SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
}

} // namespace

void SetFrameLook(wxFrame& frame) {
    TakeDialogColour(frame);
    frame.Bind(wxEVT_SYS_COLOUR_CHANGED, [&frame](wxSysColourChangedEvent& event) {
        event.Skip();
        TakeDialogColour(frame);
        frame.Refresh();
    });
    frame.Bind(wxEVT_ACTIVATE, [&frame](wxActivateEvent& event) {
        event.Skip();
        // The labels of a grid that was drawn behind a dialog are grey. Later, because the dialog may
        // disable the frame until its function returns.
        if (event.GetActive())
            frame.CallAfter([&frame] { frame.Refresh(); });
    });
}
