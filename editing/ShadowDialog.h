// Asks for the memory that a new shadow is to live in.
#pragma once

#include <wx/dialog.h>
#include <wx/string.h>

class wxTextCtrl;

class ShadowDialog : public wxDialog {
public:
    ShadowDialog(wxWindow* parent, const wxString& title);

    bool TransferDataFromWindow() override;

    /// What the user typed, as it stands, once OK has closed the dialog.
    const wxString& EnteredText() const { return m_enteredText; }

private:
    wxTextCtrl* m_textCtrl;
    wxString m_enteredText;
};
