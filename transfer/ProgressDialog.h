// A dialog with one gauge.
#pragma once

#include <wx/dialog.h>

/// Dialog with a gauge of range 100 at 0, centred. No part of the program shows it.
class ProgressDialog : public wxDialog {
public:
    explicit ProgressDialog(wxWindow* parent, wxWindowID id = wxID_ANY, const wxString& title = wxString(),
                            const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize,
                            long style = wxDEFAULT_DIALOG_STYLE);
};
