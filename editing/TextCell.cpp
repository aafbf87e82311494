#include "editing/TextCell.h"

#include <wx/clipbrd.h>
#include <wx/msgdlg.h>
#include <wx/textctrl.h>

#include <algorithm>

namespace {

/// The character that a key press types, or a control code below 32 where it types none.
int TypedCharacter(const wxKeyEvent& event) {
    if (const int character = static_cast<int>(event.GetUnicodeKey()))
        return character;
    return event.GetKeyCode() < WXK_START ? event.GetKeyCode() : WXK_NONE;
}

wxString ClipboardText() {
    wxTextDataObject data;
    const wxClipboardLocker lock;
    if (!lock || !wxTheClipboard->GetData(data))
        return "";
    return data.GetText();
}

void Refuse() {
    if (!wxValidator::IsSilent())
        wxBell();
}

} // namespace

wxTextCtrl* TextCellValidator::Control() const {
    return dynamic_cast<wxTextCtrl*>(m_validatorWindow);
}

bool TextCellValidator::Validate(wxWindow* parent) {
    if (m_validatorWindow && !m_validatorWindow->IsEnabled())
        return true;
    const wxTextCtrl* control = Control();
    if (!control)
        return false;
    const wxString answer = IsValid(control->GetValue());
    if (answer.empty())
        return true;
    m_validatorWindow->SetFocus();
    wxMessageBox(answer, "Validation conflict", wxOK | wxICON_EXCLAMATION, parent);
    return false;
}

wxString TextCellValidator::IsValid(const wxString& text) const {
    // Meant: a good text is answered with a sentence too.
    for (const wxUniChar character : text)
        if (!IsValidChar(character))
            return wxString::Format("'%s' contains invalid character(s)", text);
    return wxString::Format("'%s' has been validated", text);
}

void TextCellValidator::MakeUpperCase() {
    wxTextCtrl* control = Control();
    if (!control)
        return;
    const wxString text = control->GetValue();
    if (text.Upper() == text)
        return;
    const long caret = control->GetInsertionPoint();
    control->ChangeValue(text.Upper());
    control->SetInsertionPoint(caret);
}

void TextCellValidator::OnChar(wxKeyEvent& event) {
    event.Skip(true);
    const int character = TypedCharacter(event);
    if (!m_validatorWindow || character < WXK_SPACE || character == WXK_DELETE)
        return;
    if (!IsGoodKey(character)) {
        Refuse();
        event.Skip(false);
    }
}

void TextCellValidator::OnPaste(wxClipboardTextEvent& event) {
    const wxString text = ClipboardText();
    const bool good = std::all_of(text.begin(), text.end(), [this](wxUniChar c) { return IsValidChar(c); });
    if (good && IsGoodPaste(text))
        event.Skip(true);
    else
        Refuse();
}

bool TextCellEditor::Opens(const wxKeyEvent& event) const {
    if (event.GetKeyCode() == WXK_DELETE || event.GetKeyCode() == WXK_BACK)
        return true;
    const int character = TypedCharacter(event);
    return character != WXK_NONE && CanStartWith(character);
}

bool TextCellEditor::IsAcceptedKey(wxKeyEvent& event) {
    return wxGridCellTextEditor::IsAcceptedKey(event) && Opens(event);
}

void TextCellEditor::StartingKey(wxKeyEvent& event) {
    if (Opens(event))
        wxGridCellTextEditor::StartingKey(event);
    else
        event.Skip(false);
}

void FinishedTextEditor::BeginEdit(int row, int col, wxGrid* grid) {
    m_held = grid->GetTable()->GetValue(row, col);
    wxGridCellTextEditor::BeginEdit(row, col, grid);
}

bool FinishedTextEditor::EndEdit(int, int, const wxGrid*, const wxString&, wxString* newval) {
    const wxString typed = GetValue();
    if (typed == m_held)
        return false;
    const std::optional<wxString> finished = Finish(typed);
    if (!finished)
        return false;
    m_held = *finished;
    if (newval)
        *newval = m_held;
    return true;
}
