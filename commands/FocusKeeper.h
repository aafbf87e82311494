// Keeps the keyboard focus over a time in which other windows take it.
#pragma once

// weakref.h needs what string.h includes, and doesn't include it itself.
#include <wx/string.h>
#include <wx/weakref.h>
#include <wx/window.h>

/// Restores the keyboard focus to the window that had it, if that window still exists: windows lose the focus
/// while they are disabled.
class FocusKeeper {
public:
    FocusKeeper() : m_focus(wxWindow::FindFocus()) {}
    ~FocusKeeper() {
        if (m_focus)
            m_focus->SetFocus();
    }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    wxWindowRef m_focus;
};
