// Asks for the memory number of a new shadow.
#pragma once

#include <wx/dialog.h>
#include <wx/string.h>

class wxTextCtrl;

class ShadowDialog : public wxDialog {
public:
    ShadowDialog(wxWindow* parent, const wxString& title);

    bool TransferDataFromWindow() override;

    /// Returns the unchanged text that the user typed, after OK has closed the dialog.
    const wxString& EnteredText() const { return m_enteredText; }

private:
    wxTextCtrl* m_textCtrl;
    wxString m_enteredText;
};
