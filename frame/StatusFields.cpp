#include "frame/StatusFields.h"

#include "commands/StatusOutcome.h"
#include "frame/StatusBarCut.h"

#include <wx/statusbr.h>

namespace {

void ShowTip(wxStatusBar* statusBar, const wxPoint& at) {
    const int field = statusBar->GetFieldFromPoint(at);
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
