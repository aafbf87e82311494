#include "frame/ZelkMain.h"

#include <wx/statusbr.h>

ZelkFrame::ZelkFrame(wxWindow* parent) : OrvZELFrame(parent) {
    m_statusBar->SetStatusText("Select function", 0);
}

// Closing asks nothing, and what was not saved goes: this is meant.
void ZelkFrame::OnClose(wxCloseEvent&) {
    Destroy();
}

void ZelkFrame::OnQuit(wxCommandEvent&) {
    Destroy();
}

void CommitOpenEditor() {
    if (wxGrid* grid = CurrentGrid())
        grid->DisableCellEditControl();
}
