#include "commands/SpokenNames.h"

#include <wx/access.h>
#include <wx/window.h>

namespace {

/// The name of a control; the system knows the rest.
class NamedControl : public wxAccessible {
public:
    NamedControl(wxWindow* control, const wxString& name) : wxAccessible(control), m_name(name) {}

    wxAccStatus GetName(int child, wxString* name) override {
        if (child != wxACC_SELF)
            return wxACC_NOT_IMPLEMENTED;
        *name = m_name;
        return wxACC_OK;
    }

private:
    const wxString m_name;
};

/// A window of cells, of which the one with the cursor is told. A child's number is that of its place plus
/// one, because 0 is the window itself.
class CellWindow : public wxAccessible {
public:
    CellWindow(wxWindow* window, const wxString& name) : wxAccessible(window), m_name(name) {}

    void Tell(int place, const wxString& text, bool again) {
        const bool moved = m_child != place + 1;
        const bool changed = m_text != text;
        m_child = place + 1;
        m_text = text;
        if (changed && !moved)
            NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, GetWindow(), wxOBJID_CLIENT, m_child);
        if ((moved || again) && GetWindow()->HasFocus())
            NotifyEvent(wxACC_EVENT_OBJECT_FOCUS, GetWindow(), wxOBJID_CLIENT, m_child);
    }

    wxAccStatus GetChildCount(int* count) override {
        // Readers refuse numbers beyond the count.
        *count = m_child;
        return wxACC_OK;
    }

    wxAccStatus GetChild(int child, wxAccessible** object) override {
        *object = child == wxACC_SELF ? this : nullptr;
        return wxACC_OK;
    }

    wxAccStatus GetName(int child, wxString* name) override {
        *name = child == wxACC_SELF ? m_name : child == m_child ? m_text : wxString();
        return wxACC_OK;
    }

    wxAccStatus GetRole(int child, wxAccRole* role) override {
        *role = child == wxACC_SELF ? wxROLE_SYSTEM_TABLE : wxROLE_SYSTEM_CELL;
        return wxACC_OK;
    }

    wxAccStatus GetState(int child, long* state) override {
        *state = wxACC_STATE_SYSTEM_FOCUSABLE;
        if (child == m_child && GetWindow()->HasFocus())
            *state |= wxACC_STATE_SYSTEM_FOCUSED;
        return wxACC_OK;
    }

    wxAccStatus GetFocus(int* child, wxAccessible** object) override {
        *child = GetWindow()->HasFocus() ? m_child : wxACC_SELF;
        *object = nullptr;
        return wxACC_OK;
    }

private:
    const wxString m_name;
    wxString m_text;
    int m_child = wxACC_SELF;
};

} // namespace

void NameForReader(wxWindow& control, const wxString& name) {
    // The control takes ownership.
    control.SetAccessible(new NamedControl(&control, name));
    wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, &control, wxOBJID_CLIENT, wxACC_SELF);
}

void DescribeToReader(wxWindow& window, DrawnContent content, const wxString& name) {
    // The system draws the fields of a status bar there, and tells them itself.
    if (content == DrawnContent::Cells)
        window.SetAccessible(new CellWindow(&window, name));
}

void SpeakCell(wxWindow& window, int place, const wxString& text, bool again) {
    if (auto* cells = dynamic_cast<CellWindow*>(window.GetAccessible()))
        cells->Tell(place, text, again);
}

void SpeakFields(wxWindow&, const std::vector<wxString>&) {}
