// A dialog with one gauge.
#pragma once

#include <wx/dialog.h>

/// A gauge of range 100 in a dialog of its own, at 0 and centred. Not shown by any part of the program.
class ProgressDialog : public wxDialog {
public:
    explicit ProgressDialog(wxWindow* parent, wxWindowID id = wxID_ANY, const wxString& title = wxString(),
                            const wxPoint& pos = wxDefaultPosition, const wxSize& size = wxDefaultSize,
                            long style = wxDEFAULT_DIALOG_STYLE);
};
