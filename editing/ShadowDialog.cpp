#include "editing/ShadowDialog.h"

#include "catalogue/TextSizes.h"
#include "commands/SpokenNames.h"

#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>

ShadowDialog::ShadowDialog(wxWindow* parent, const wxString& title)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxSize(320, 130)) {
    auto* box = new wxBoxSizer(wxVERTICAL);
    auto* entry = new wxBoxSizer(wxHORIZONTAL);
    auto* label = new wxStaticText(this, wxID_ANY, "Shadow Memory Num:");
    label->SetMinSize(wxSize(std::max(170, label->GetBestSize().x), wxDefaultCoord));
    entry->Add(label, 0, wxALL | wxALIGN_CENTRE_VERTICAL, 5);
    m_textCtrl = new wxTextCtrl(this, wxID_ANY);
    m_textCtrl->SetMinSize(wxSize(wxDefaultCoord, FieldHeightFor(m_textCtrl)));
    NameForReader(*m_textCtrl, "Shadow memory number");
    entry->Add(m_textCtrl, 1, wxALL | wxALIGN_CENTRE_VERTICAL, 5);
    box->Add(entry, 1, wxEXPAND | wxALL, 5);
    box->Add(CreateButtonSizer(wxOK | wxCANCEL), 0, wxEXPAND | wxALL, 5);
    SetSizer(box);
    SetMinSize(wxSize(320, 130));
    Fit();
    m_textCtrl->SetFocus();
    Bind(
        wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& event) { event.Enable(!m_textCtrl->IsEmpty()); }, wxID_OK);
}

bool ShadowDialog::TransferDataFromWindow() {
    m_enteredText = m_textCtrl->GetValue();
    return true;
}
