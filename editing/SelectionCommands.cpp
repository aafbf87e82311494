// The selection commands of the Data menu.
#include "frame/ZelkMain.h"

void ZelkFrame::OnSelectAll(wxCommandEvent&) {
    CurrentGrid()->SelectAll();
}

void ZelkFrame::OnDeSelectAll(wxCommandEvent&) {
    CurrentGrid()->ClearSelection();
}
