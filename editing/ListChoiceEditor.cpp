#include "editing/ListChoiceEditor.h"

#include <wx/combobox.h>
#include <wx/validate.h>

void ListChoiceEditor::Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) {
    wxGridCellChoiceEditor::Create(parent, id, handler);
    m_control->Bind(wxEVT_CHAR, &ListChoiceEditor::OnChar, this);
    m_control->Bind(wxEVT_COMBOBOX, &ListChoiceEditor::OnChosen, this);
    const auto note = [this](bool open) {
        return [this, open](wxCommandEvent& event) {
            m_listIsOpen = open;
            m_keysChose = false;
            event.Skip();
        };
    };
    m_control->Bind(wxEVT_COMBOBOX_DROPDOWN, note(true));
    m_control->Bind(wxEVT_COMBOBOX_CLOSEUP, note(false));
    WatchChoiceList(*Combo(), *this);
}

void ListChoiceEditor::BeginEdit(int row, int col, wxGrid* grid) {
    m_startText = grid->GetCellValue(row, col);
    m_typed.Forget();
    wxGridCellChoiceEditor::BeginEdit(row, col, grid);
    // BeginEdit of the toolkit calls Reset, which marks the edit as given up.
    m_isChosen = m_isGivenUp = m_listIsOpen = m_keysChose = false;
}

void ListChoiceEditor::Reset() {
    ShowStart();
    m_isGivenUp = true;
}

void ListChoiceEditor::ShowStart() {
    const int position = Combo()->FindString(m_startText, true);
    if (position == wxNOT_FOUND)
        ShowNoChoice(*Combo());
    else
        Combo()->SetSelection(position);
}

bool ListChoiceEditor::EndEdit(int, int, const wxGrid*, const wxString&, wxString* newval) {
    if (!IsChosen())
        return false;
    m_value = Combo()->GetValue();
    if (newval)
        *newval = m_value;
    return true;
}

std::optional<wxString> ListChoiceEditor::HoldText(int row, int col, wxGrid* grid, const wxString& text) {
    const int position = ChoiceMeantBy(m_choices, text);
    if (position == wxNOT_FOUND)
        return std::nullopt;
    m_startText = grid->GetCellValue(row, col);
    m_value = m_choices[static_cast<size_t>(position)];
    return m_value;
}

void ListChoiceEditor::StartingKey(wxKeyEvent& event) {
    if (!TakeKey(event))
        event.Skip();
}

void ListChoiceEditor::OnChar(wxKeyEvent& event) {
    if (!TakeKey(event))
        event.Skip();
}

bool ListChoiceEditor::TakeKey(const wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_BACK) {
        if (!m_typed.IsEmpty())
            Choose(TakeBackInList());
        return true;
    }
    const wxUniChar character(event.GetUnicodeKey());
    const bool command = event.ControlDown() != event.AltDown();
    if (command || character < WXK_SPACE || character == WXK_DELETE || (character == ' ' && !TakesBlank()))
        return false;
    TypeInControl(character);
    return true;
}

void ListChoiceEditor::TypeInControl(wxUniChar character) {
    Choose(TypeInList(character));
}

void ListChoiceEditor::Choose(int position) {
    if (position == wxNOT_FOUND)
        ShowStart();
    else
        Combo()->SetSelection(position);
    // In an open list it becomes a choice only when it is taken.
    m_isChosen = position != wxNOT_FOUND && !m_listIsOpen;
}

void ListChoiceEditor::OnChosen(wxCommandEvent& event) {
    m_typed.Forget();
    m_isChosen = true;
    event.Skip();
}

int ListChoiceEditor::Found(int position) {
    m_keysChose = position != wxNOT_FOUND;
    return position;
}

int ListChoiceEditor::TypeInList(wxUniChar character) {
    const int position = Found(m_typed.Type(character, Combo()->GetStrings()));
    if (position == wxNOT_FOUND && !wxValidator::IsSilent())
        wxBell();
    return position;
}

int ListChoiceEditor::TakeBackInList() {
    return Found(m_typed.TakeBack(Combo()->GetStrings()));
}

bool ListChoiceEditor::TakesBlank() const {
    return m_typed.Fits(' ', Combo()->GetStrings());
}

void ListChoiceEditor::MoveInList() {
    m_typed.Forget();
    m_keysChose = true;
}

void ListChoiceEditor::TakeFromList(int position) {
    if (position == wxNOT_FOUND)
        return;
    Combo()->SetSelection(position);
    m_isChosen = true;
}
