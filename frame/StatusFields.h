// The fields of the status bar.
#pragma once

#include <wx/statusbr.h>

/// A status bar that cuts a text that doesn't fit its field with an ellipsis, and shows the whole text as
/// tool tip when the pointer is on it. The port is cut at its start, because names of ports differ at their
/// end. Elsewhere the tool tip is the story of the outcome (commands/StatusOutcome.h).
class StatusFields : public wxStatusBar {
public:
    StatusFields(wxWindow* parent, wxWindowID id, long style, const wxString& name);

    /// Number of the field that shows the port, from 0.
    static constexpr int PortField = 4;

#ifndef __WXMSW__
protected:
    void DrawFieldText(wxDC& dc, const wxRect& rect, int field, int textHeight) override;
#endif

private:
    void ShowTip(const wxPoint& at);
};
