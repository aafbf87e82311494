#include "frame/SelectionDialogs.h"

#include "catalogue/PageModel.h"
#include "commands/SpokenNames.h"
#include "frame/SerialPorts.h"
#include "transfer/ChosenPort.h"

#include <wx/button.h>
#include <wx/event.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <utility>

using namespace RadioCatalogue;

wxChoice* PortChoice = nullptr;
wxChoice* RadioChoice = nullptr;
wxChoice* BandChoice = nullptr;
wxArrayString PortList;
wxArrayString BandList;

SelectionDialog::SelectionDialog(wxWindow* parent, const wxString& title, const wxString& label,
                                 const wxArrayString& choices)
    // No wxCLOSE_BOX: users close the dialog with its buttons.
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxSize(192, 111), wxCAPTION) {
    auto* labelText = new wxStaticText(this, wxID_ANY, label);
    labelText->SetMinSize(wxSize(std::max(50, labelText->GetBestSize().x), -1));
    m_choice = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, choices);
    NameForReader(*m_choice, label);

    auto* choiceRow = new wxBoxSizer(wxHORIZONTAL);
    choiceRow->Add(labelText, 0, wxALIGN_CENTRE_VERTICAL);
    choiceRow->Add(m_choice, 1);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(choiceRow, 0, wxEXPAND | wxALL, 5);
    rows->Add(CreateButtonSizer(wxOK | wxCANCEL), 0, wxEXPAND | wxALL, 5);
    SetMinSize(wxSize(190, 110));
    SetSizer(rows);
    Fit();

    Bind(wxEVT_UPDATE_UI, &SelectionDialog::OnUpdateOk, this, wxID_OK);
    if (!choices.empty()) {
        Bind(wxEVT_ACTIVATE, &SelectionDialog::OnActivate, this);
        // The buttons have given OK the keyboard. On Windows that activates the dialog before it is shown.
        m_choice->SetFocus();
    } else
        // An empty list takes no keyboard, and Escape would be lost. Return must not press Cancel.
        (new wxWindow(this, wxID_ANY, wxPoint(0, 0), wxSize(1, 1)))->SetFocus();
}

bool SelectionDialog::TakeChoice() {
    const int selection = m_choice->GetSelection();
    if (selection == wxNOT_FOUND)
        return false;
    m_value = m_choice->GetString(static_cast<unsigned>(selection));
    return true;
}

void SelectionDialog::OnActivate(wxActivateEvent& event) {
    event.Skip();
    // On GTK the list of a dialog that isn't on the screen takes no keyboard, and OK would have it. On
    // Windows the first event comes when the user leaves the dialog.
    if (!std::exchange(m_begun, true) && event.GetActive())
        m_choice->SetFocus();
}

void SelectionDialog::OnUpdateOk(wxUpdateUIEvent& event) {
    event.Enable(TakeChoice());
}

namespace {

const wxArrayString& FindPorts() {
    PortList = ListSerialPorts();
    return PortList;
}

/// The position of the page's radio among the choices of RadioDialog, or wxNOT_FOUND.
int PositionOfRadio(int page) {
    return RadioChoice->FindString(PageStrings[page].RadioName, true);
}

} // namespace

PortDialog::PortDialog(wxWindow* parent, const wxString& title)
    : SelectionDialog(parent, title, "Port", FindPorts()) {
    PortChoice = m_choice;
    // The dialog does not offer ports that the user may not open; the hint explains what is missing.
    const wxString hint = SerialPortGroupHint();
    if (!hint.empty()) {
        SetToolTip(hint);
        m_choice->SetToolTip(hint);
    }
}

bool PortDialog::TransferDataToWindow() {
    m_choice->SetStringSelection(PortName);
    return true;
}

bool PortDialog::TransferDataFromWindow() {
    if (TakeChoice())
        PortName = GetValue();
    return true;
}

RadioDialog::RadioDialog(wxWindow* parent, const wxString& title, int page)
    : SelectionDialog(parent, title, "Radio", ListOf(RadioLabel)), m_page(page) {
    RadioChoice = m_choice;
}

bool RadioDialog::TransferDataToWindow() {
    const int position = PositionOfRadio(m_page);
    if (position != wxNOT_FOUND)
        m_choice->SetSelection(position);
    return true;
}

BandDialog::BandDialog(wxWindow* parent, const wxString& title, int page)
    : SelectionDialog(parent, title, "Band", BandList), m_page(page) {
    BandChoice = m_choice;
}

bool BandDialog::TransferDataToWindow() {
    // Intentional: a position among the radios selects one of the bands.
    const int position = PositionOfRadio(m_page);
    if (position != wxNOT_FOUND && position < static_cast<int>(m_choice->GetCount()))
        m_choice->SetSelection(position);
    return true;
}
