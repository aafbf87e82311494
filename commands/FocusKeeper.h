// The keyboard's place, kept over a time in which other windows take it.
#pragma once

#include <wx/weakref.h>
#include <wx/window.h>

/// Gives the keyboard back to the window that had it, if that still stands: windows that are disabled for
/// a while lose it.
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
