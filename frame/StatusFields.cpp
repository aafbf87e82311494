#include "frame/StatusFields.h"

#include "commands/StatusOutcome.h"
#include "frame/StatusBarCut.h"

#include <wx/statusbr.h>

namespace {

/// Returns the field under a position in the status bar, wxNOT_FOUND beside the fields.
int FieldAt(const wxStatusBar& statusBar, const wxPoint& at) {
    for (int field = 0; field < statusBar.GetFieldsCount(); ++field)
        if (wxRect area; statusBar.GetFieldRect(field, area) && area.Contains(at))
            return field;
    return wxNOT_FOUND;
}

void ShowTip(wxStatusBar* statusBar, const wxPoint& at) {
    const int field = FieldAt(*statusBar, at);
    const bool cut = field != wxNOT_FOUND && statusBar->GetField(field).IsEllipsized();
    const wxString tip = cut ? statusBar->GetStatusText(field) : OutcomeStory();
    if (tip == statusBar->GetToolTipText())
        return;
    if (tip.empty())
        statusBar->UnsetToolTip();
    else
        statusBar->SetToolTip(tip);
}

} // namespace

wxStatusBar* MakeStatusFields(wxWindow* parent, wxWindowID id, long style, const wxString& name) {
    wxStatusBar* const statusBar = MakeCutStatusBar(parent, id, style, name, PortField);
    statusBar->Bind(wxEVT_MOTION, [statusBar](wxMouseEvent& event) {
        event.Skip();
        ShowTip(statusBar, event.GetPosition());
    });
    return statusBar;
}
