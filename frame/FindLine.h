// The line below the grid of a page that finds a text or a frequency there.
#pragma once

#include <wx/panel.h>

class wxStaticText;
class wxTextCtrl;

/// A page gets its line when it is first asked for; it is hidden until it is opened. Return selects the next
/// cell that shows the text and moves the grid's cursor there, Shift+Return the previous one, in row order
/// over the shown columns.
class FindLine : public wxPanel {
public:
    /// Returns the line of a page's panel, null if it has none yet.
    static FindLine* Of(const wxWindow* page);

    /// Adds a hidden line below the grid of a page's panel, which owns it.
    static FindLine* AddTo(wxWindow* page);

    /// Shows the line and gives it the keyboard, with its former text selected.
    void Open();

    /// Hides the line and gives the keyboard back to the grid.
    void Close();

private:
    explicit FindLine(wxWindow* page);
    void ForgetResult();
    void OnKey(wxKeyEvent& event);
    void Find(bool forward);

    wxTextCtrl* m_text;
    wxStaticText* m_result;
    /// No search since the text was changed: the cursor's own cell counts as well.
    bool m_textIsNew = true;
};
