#include "editing/ChoiceList.h"

#include <wx/combobox.h>

#include <memory>

// Include last: these headers define macros with common names.
#include <commctrl.h>
#include <windows.h>

// The control keeps the keyboard focus while its list is open. Typed characters reach it as with the list
// closed, and its owner does the choosing. Only the keys that move in the list or end it are handled here.

namespace {

/// Watches one control. Shared by the control's event handlers, and destroyed with them.
class ListKeys : public std::enable_shared_from_this<ListKeys> {
public:
    ListKeys(wxComboBox& control, ChoiceListListener& listener)
        : m_control(control), m_listener(listener), m_handle(control.GetHWND()),
          m_parent(control.GetParent()->GetHWND()) {
        SetWindowSubclass(m_parent, Watch, Id(), reinterpret_cast<DWORD_PTR>(this));
    }

    ~ListKeys() { RemoveWindowSubclass(m_parent, Watch, Id()); }

    ListKeys(const ListKeys&) = delete;
    ListKeys& operator=(const ListKeys&) = delete;

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
            TakeWhatKeysChose();
            break;
        case WXK_SPACE:
            if (m_listener.TakesBlank())
                break;
            // A blank that doesn't continue the typed text acts as Enter. The list would highlight its first
            // entry.
            event.Skip(false);
            TakeWhatKeysChose();
            m_control.Dismiss();
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

    void OnChosen(wxCommandEvent& event) {
        if (!m_isLeft)
            return event.Skip();
        // The toolkit reports the entry that keys led to as chosen, even if a click elsewhere closed the
        // list.
        m_control.SetSelection(m_taken);
    }

private:
    void TakeWhatKeysChose() {
        if (!m_listener.KeysChose())
            return;
        m_taken = m_control.GetCurrentSelection();
        m_listener.TakeFromList(m_taken);
    }

    /// Called before the toolkit handles the notification.
    void Note(UINT notification) {
        switch (notification) {
        case CBN_DROPDOWN:
            m_isOpen = true;
            m_isLeft = false;
            m_taken = m_control.GetCurrentSelection();
            break;
        case CBN_SELENDOK:
            m_isLeft = false;
            m_taken = m_control.GetCurrentSelection();
            break;
        case CBN_SELENDCANCEL:
            // A control that loses the keyboard sends it also with its list closed.
            m_isLeft = m_isOpen;
            break;
        case CBN_CLOSEUP:
            m_isOpen = false;
            break;
        default:
            break;
        }
    }

    static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM what, LPARAM sender, UINT_PTR,
                                  DWORD_PTR data) {
        auto* keys = reinterpret_cast<ListKeys*>(data);
        if (message != WM_COMMAND || reinterpret_cast<HWND>(sender) != keys->m_handle)
            return DefSubclassProc(window, message, what, sender);
        // The end of an edit may destroy the control.
        const auto kept = keys->shared_from_this();
        keys->Note(HIWORD(what));
        const LRESULT result = DefSubclassProc(window, message, what, sender);
        if (HIWORD(what) == CBN_CLOSEUP)
            keys->m_isLeft = false;
        return result;
    }

    /// Tells the watched controls of one parent apart.
    UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(this); }

    wxComboBox& m_control;
    ChoiceListListener& m_listener;
    const HWND m_handle;
    const HWND m_parent;
    bool m_isOpen = false;
    /// The list is being closed without a choice.
    bool m_isLeft = false;
    /// Position of the entry that was last taken, or shown before the list opened.
    int m_taken = wxNOT_FOUND;
};

} // namespace

void WatchChoiceList(wxComboBox& control, ChoiceListListener& listener) {
    const auto keys = std::make_shared<ListKeys>(control, listener);
    // The open list holds the mouse, and meanwhile the toolkit sends no wxEVT_CHAR_HOOK. Bound to the grid's
    // own key handler, which ends the edit, so that this one runs before it.
    control.GetEventHandler()->Bind(wxEVT_KEY_DOWN, [keys](wxKeyEvent& event) { keys->OnKey(event); });
    control.Bind(wxEVT_COMBOBOX, [keys](wxCommandEvent& event) { keys->OnChosen(event); });
    control.Bind(wxEVT_MOUSEWHEEL, [](wxMouseEvent&) {});
}

void ShowNoChoice(wxComboBox& control) {
    control.SetSelection(wxNOT_FOUND);
}
