#include "commands/StatusOutcome.h"

#include <wx/control.h>
#include <wx/dcclient.h>
#include <wx/statusbr.h>
#include <wx/weakref.h>

#include <algorithm>

namespace {

wxWeakRef<wxStatusBar> outcomeBar;
/// Whether the first field of outcomeBar holds an outcome.
bool outcomeIsTold = false;
wxString outcomeStory;

constexpr int StatusFields = 5;

/// Pixels that the toolkit leaves free beside a field's text, sum of both sides.
constexpr int FieldMargin = 8;

/// Widens the first field for a text that does not fit, up to two fifths of the bar; the other fields share
/// the rest. Returns the text, shortened to fit.
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

void ShowOutcomesIn(wxStatusBar* statusBar) {
    outcomeBar = statusBar;
    outcomeIsTold = false;
}

void TellOutcome(const wxString& verdict, const wxString& story) {
    if (verdict.empty())
        return ForgetOutcome();
    if (!outcomeBar)
        return;
    outcomeBar->SetStatusText(MakeRoomFor(outcomeBar, verdict), 0);
    outcomeStory = story.empty() ? verdict : story;
    outcomeBar->SetToolTip(outcomeStory);
    outcomeIsTold = true;
}

void ForgetOutcome() {
    if (!OutcomeIsTold())
        return;
    outcomeBar->SetStatusWidths(StatusFields, nullptr);
    outcomeBar->SetStatusText("Select function", 0);
    outcomeBar->UnsetToolTip();
    outcomeIsTold = false;
}

wxString OutcomeStory() {
    return OutcomeIsTold() ? outcomeStory : wxString();
}

bool OutcomeIsTold() {
    return outcomeBar && outcomeIsTold;
}
