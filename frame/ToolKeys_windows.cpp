#include "frame/ToolKeys.h"

#include <wx/event.h>
#include <wx/frame.h>
#include <wx/toolbar.h>

#include <windows.h>

namespace {

std::function<void()> leaveTools;

void OnToolKey(wxKeyEvent& event) {
    const bool isTab = event.GetKeyCode() == WXK_TAB && (event.GetModifiers() & ~wxMOD_SHIFT) == wxMOD_NONE;
    if (isTab || event.GetKeyCode() == WXK_ESCAPE)
        leaveTools();
    else
        event.Skip();
}

} // namespace

// The system's tool bar knows the other keys, but the toolkit gives it no keyboard.
void GiveKeyboardToTools(wxToolBar& tools, const std::function<void()>& leave) {
    leaveTools = leave;
    tools.Unbind(wxEVT_CHAR_HOOK, OnToolKey);
    tools.Bind(wxEVT_CHAR_HOOK, OnToolKey);
    ::SetFocus(tools.GetHandle());
}

// The toolkit's grid keeps the release of F10 to itself, for which the system waits.
bool OpenMenuBar(wxFrame& window) {
    PostMessageW(window.GetHandle(), WM_SYSCOMMAND, SC_KEYMENU, 0);
    return true;
}
