#include "frame/Messages.h"

#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>
#include <wx/statusbr.h>

void DisplayError(int code, int value) {
    wxString message;
    switch (code) {
    case ResultBadRadio:
        message = "Invalid Radio selection";
        break;
    case ResultBadBand:
        message = "Invalid Band selection";
        break;
    case ResultNumberUsed:
        message.Printf("Number already used at row: %03d", value);
        break;
    case ResultDuplicateNumbers:
        message.Printf("%d Duplicate memory number(s) found.", value);
        break;
    default:
        message = "Unknown Error";
    }
    wxMessageBox(message, "Error", wxOK | wxCENTRE);
}

void TellOutcome(const wxString& outcome) {
    static wxString told;
    wxStatusBar* statusBar = MainFrame->m_statusBar;
    if (!outcome.empty())
        statusBar->SetStatusText(outcome, 0);
    else if (!told.empty() && statusBar->GetStatusText(0) == told)
        statusBar->SetStatusText("Select function", 0);
    told = outcome;
}
