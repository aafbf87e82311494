#include "frame/StatusFields.h"

#include "commands/StatusOutcome.h"

StatusFields::StatusFields(wxWindow* parent, wxWindowID id, long style, const wxString& name)
    : wxStatusBar(parent, id, style | wxSTB_ELLIPSIZE_END, name) {
    Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
        event.Skip();
        ShowTip(event.GetPosition());
    });
}

#ifndef __WXMSW__
void StatusFields::DrawFieldText(wxDC& dc, const wxRect& rect, int field, int textHeight) {
    // The toolkit knows one style for all fields.
    const long style = m_windowStyle;
    if (field == PortField)
        m_windowStyle = (style & ~wxSTB_ELLIPSIZE_END) | wxSTB_ELLIPSIZE_START;
    wxStatusBar::DrawFieldText(dc, rect, field, textHeight);
    m_windowStyle = style;
}
#endif

void StatusFields::ShowTip(const wxPoint& at) {
    const int field = GetFieldFromPoint(at);
    const bool cut = field != wxNOT_FOUND && GetField(field).IsEllipsized();
    const wxString tip = cut ? GetStatusText(field) : OutcomeStory();
    if (tip == GetToolTipText())
        return;
    if (tip.empty())
        UnsetToolTip();
    else
        SetToolTip(tip);
}
