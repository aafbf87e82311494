#include "frame/StatusBarSpeech.h"

#include "commands/SpokenNames.h"

#include <wx/statusbr.h>

#include <vector>

namespace {

/// Names of the fields. Outcomes and "120 Rows" say themselves what they are.
constexpr const char* FieldNames[] = {"", "Radio", "Band", "", "Port"};

void TellFields(wxStatusBar& statusBar) {
    std::vector<wxString> texts;
    int field = 0;
    for (const wxString name : FieldNames) {
        const wxString text = statusBar.GetStatusText(field++);
        texts.push_back(name.empty() ? text : name + ": " + (text.empty() ? wxString("none") : text));
    }
    SpeakFields(statusBar, texts);
}

} // namespace

void SpeakStatusBar(wxStatusBar* statusBar) {
    DescribeToReader(*statusBar, DrawnContent::Fields, "Status");
    statusBar->Bind(wxEVT_IDLE, [statusBar](wxIdleEvent& event) {
        TellFields(*statusBar);
        event.Skip();
    });
}
