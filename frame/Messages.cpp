#include "frame/Messages.h"

#include "frame/ZelkMain.h"

#include <wx/control.h>
#include <wx/dcclient.h>
#include <wx/msgdlg.h>
#include <wx/statusbr.h>

#include <algorithm>

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

namespace {

constexpr int StatusFields = 5;

/// Pixels that the toolkit leaves free beside a field's text, both sides together.
constexpr int FieldMargin = 8;

/// Gives the first field room for a text that is wider than it, up to two fifths of the bar; its neighbours
/// share the rest. The text as it then fits.
wxString MakeRoomFor(wxStatusBar* statusBar, const wxString& text) {
    statusBar->SetStatusWidths(StatusFields, nullptr);
    wxRect field;
    if (!statusBar->GetFieldRect(0, field))
        return text;
    const int wanted = statusBar->GetTextExtent(text).x + FieldMargin;
    if (wanted <= field.width)
        return text;
    const int width = std::min(wanted, statusBar->GetClientSize().x * 2 / StatusFields);
    const int widths[StatusFields] = {width, -1, -1, -1, -1};
    statusBar->SetStatusWidths(StatusFields, widths);
    wxClientDC dc(statusBar);
    return wxControl::Ellipsize(text, dc, wxELLIPSIZE_END, width - FieldMargin);
}

} // namespace

void TellOutcome(const wxString& verdict, const wxString& story) {
    if (verdict.empty())
        return ForgetOutcome();
    wxStatusBar* statusBar = MainFrame->m_statusBar;
    statusBar->SetStatusText(MakeRoomFor(statusBar, verdict), 0);
    statusBar->SetToolTip(story.empty() ? verdict : story);
    MainFrame->m_outcomeIsTold = true;
}

void ForgetOutcome() {
    if (!OutcomeIsTold())
        return;
    wxStatusBar* statusBar = MainFrame->m_statusBar;
    statusBar->SetStatusWidths(StatusFields, nullptr);
    statusBar->SetStatusText("Select function", 0);
    statusBar->UnsetToolTip();
    MainFrame->m_outcomeIsTold = false;
}

bool OutcomeIsTold() {
    return MainFrame && MainFrame->m_outcomeIsTold;
}
