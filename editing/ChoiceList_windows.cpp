#include "editing/ChoiceList.h"

#include <wx/combobox.h>

#include <memory>

// The control keeps the keyboard focus while its list is open. Typed characters reach it as with the list
// closed, and its owner does the choosing. Only the keys that move in the list or end it are handled here.

namespace {

/// Watches one control. Shared by the control's event handlers, and destroyed with them.
class ListKeys {
public:
    ListKeys(wxComboBox& control, ChoiceListListener& listener) : m_control(control), m_listener(listener) {}

    void OnKey(wxKeyEvent& event) {
        event.Skip();
        if (!m_isOpen)
            return;
        switch (event.GetKeyCode()) {
        case WXK_ESCAPE:
            m_listener.GiveUpList();
            break;
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
        case WXK_TAB:
            if (m_listener.KeysChose())
                m_listener.TakeFromList(m_control.GetCurrentSelection());
            break;
        case WXK_UP:
        case WXK_DOWN:
        case WXK_PAGEUP:
        case WXK_PAGEDOWN:
        case WXK_HOME:
        case WXK_END:
        case WXK_NUMPAD_UP:
        case WXK_NUMPAD_DOWN:
        case WXK_NUMPAD_PAGEUP:
        case WXK_NUMPAD_PAGEDOWN:
        case WXK_NUMPAD_HOME:
        case WXK_NUMPAD_END:
            m_listener.MoveInList();
            break;
        default:
            break;
        }
    }

    void SetOpen(bool open) { m_isOpen = open; }

private:
    wxComboBox& m_control;
    ChoiceListListener& m_listener;
    bool m_isOpen = false;
};

} // namespace

void WatchChoiceList(wxComboBox& control, ChoiceListListener& listener) {
    const auto keys = std::make_shared<ListKeys>(control, listener);
    control.Bind(wxEVT_COMBOBOX_DROPDOWN, [keys](wxCommandEvent& event) {
        keys->SetOpen(true);
        event.Skip();
    });
    control.Bind(wxEVT_COMBOBOX_CLOSEUP, [keys](wxCommandEvent& event) {
        keys->SetOpen(false);
        event.Skip();
    });
    // Runs before the grid's own key handler, which ends the edit.
    control.Bind(wxEVT_CHAR_HOOK, [keys](wxKeyEvent& event) { keys->OnKey(event); });
    control.Bind(wxEVT_MOUSEWHEEL, [](wxMouseEvent&) {});
}

void ShowNoChoice(wxComboBox& control) {
    control.SetSelection(wxNOT_FOUND);
}
