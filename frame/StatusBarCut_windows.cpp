#include "frame/StatusBarCut.h"

#include <wx/statusbr.h>

wxStatusBar* MakeCutStatusBar(wxWindow* parent, wxWindowID id, long style, const wxString& name, int) {
    // The system draws the texts. Names of ports are short here, such as "COM12".
    return new wxStatusBar(parent, id, style | wxSTB_ELLIPSIZE_END, name);
}
