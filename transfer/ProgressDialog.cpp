// A dialog with one gauge.
#include "transfer/ProgressDialog.h"

#include <wx/gauge.h>
#include <wx/sizer.h>

ProgressDialog::ProgressDialog(wxWindow* parent, wxWindowID id, const wxString& title, const wxPoint& pos,
                               const wxSize& size, long style)
    : wxDialog(parent, id, title, pos, size, style) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    auto* gauge = new wxGauge(this, wxID_ANY, 100, wxDefaultPosition, wxDefaultSize, wxGA_HORIZONTAL);
    gauge->SetValue(0);
    column->Add(gauge, 0, wxALL, 5);
    SetSizerAndFit(column);
    Centre();
}
