#include "editing/TextCell.h"

#include "editing/ClipboardText.h"

#include <wx/msgdlg.h>
#include <wx/textctrl.h>

#include <algorithm>

namespace {

/// Returns the character that a key press types, or a control code below 32 if it types none.
int TypedCharacter(const wxKeyEvent& event) {
    // wchar_t, no signed char. NOLINTNEXTLINE(bugprone-signed-char-misuse)
    if (const int character = static_cast<int>(event.GetUnicodeKey()))
        return character;
    return event.GetKeyCode() < WXK_START ? event.GetKeyCode() : WXK_NONE;
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
    // Intentional: a valid text also returns a sentence.
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
    m_isTooLong = false;
    const int character = TypedCharacter(event);
    if (!m_validatorWindow || character < WXK_SPACE || character == WXK_DELETE)
        return;
    if (IsGoodKey(character)) {
        m_expected = wxUniChar(character);
    } else {
        Refuse();
        event.Skip(false);
    }
}

bool TextCellValidator::IsGoodInsertion(const wxString&, const wxString&, const wxString&) const {
    return true;
}

bool TextCellValidator::MayInsert(const wxString& left, const wxString& inserted,
                                  const wxString& right) const {
    const bool good =
        std::all_of(inserted.begin(), inserted.end(), [this](wxUniChar c) { return IsValidChar(c); });
    return good && IsGoodInsertion(left, inserted, right);
}

void TextCellValidator::OnPaste(wxClipboardTextEvent& event) {
    const wxTextCtrl* control = Control();
    const wxString text = control ? control->GetValue() : wxString();
    const size_t caret = control ? static_cast<size_t>(control->GetInsertionPoint()) : 0;
    const wxString pasted = TextOfClipboard();
    if (!MayInsert(text.Left(caret), pasted, text.Mid(caret)))
        return Refuse();
    m_expected = pasted;
    event.Skip(true);
}

bool TextCellValidator::MayFollow(const wxString& text) const {
    size_t shorter = std::min(text.length(), m_text.length());
    size_t left = 0;
    while (left < shorter && text[left] == m_text[left])
        ++left;
    shorter -= left;
    size_t right = 0;
    while (right < shorter && text[text.length() - 1 - right] == m_text[m_text.length() - 1 - right])
        ++right;
    const wxString inserted = text.Mid(left, text.length() - left - right);
    return inserted.empty() || inserted == m_expected ||
           MayInsert(m_text.Left(left), inserted, m_text.Mid(left)) || CouldBeTyped(text);
}

void TextCellValidator::OnText(wxCommandEvent& event) {
    event.Skip(true);
    wxTextCtrl* control = Control();
    if (!control)
        return;
    const bool good = m_isOwnChange || (!m_isTooLong && MayFollow(control->GetValue()));
    m_expected.clear();
    m_isTooLong = false;
    if (!good) {
        // The middle mouse button and a drop insert text without asking first.
        const long caret = control->GetInsertionPoint();
        control->ChangeValue(m_text);
        control->SetInsertionPoint(std::min(caret, control->GetLastPosition()));
        Refuse();
        return;
    }
    if (WritesUpperCase())
        MakeUpperCase();
    m_text = control->GetValue();
}

void TextCellValidator::OnTooLong(wxCommandEvent& event) {
    // The selection may be deleted for a text that then doesn't fit.
    m_isTooLong = true;
    event.Skip();
}

void TextCellValidator::EndOwnChange() {
    m_isOwnChange = false;
    m_isTooLong = false;
    m_expected.clear();
    if (const wxTextCtrl* control = Control())
        m_text = control->GetValue();
}

namespace {

/// Marks changes of the control's text as the editor's own during its lifetime.
class OwnChange {
public:
    explicit OwnChange(wxTextCtrl* control)
        : m_validator(dynamic_cast<TextCellValidator*>(control->GetValidator())) {
        if (m_validator)
            m_validator->BeginOwnChange();
    }
    ~OwnChange() {
        if (m_validator)
            m_validator->EndOwnChange();
    }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;

private:
    TextCellValidator* const m_validator;
};

} // namespace

void TextCellEditor::BeginEdit(int row, int col, wxGrid* grid) {
    const OwnChange own(Text());
    wxGridCellTextEditor::BeginEdit(row, col, grid);
}

void TextCellEditor::Reset() {
    const OwnChange own(Text());
    wxGridCellTextEditor::Reset();
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
    if (!Opens(event)) {
        event.Skip(false);
        return;
    }
    // The edit begins with the whole text selected. The toolkit would remove the first character.
    if (event.GetKeyCode() == WXK_DELETE)
        return;
    const OwnChange own(Text());
    wxGridCellTextEditor::StartingKey(event);
}

void FinishedTextEditor::BeginEdit(int row, int col, wxGrid* grid) {
    m_held = grid->GetTable()->GetValue(row, col);
    TextCellEditor::BeginEdit(row, col, grid);
}

std::optional<wxString> FinishedTextEditor::HoldText(int, int, wxGrid*, const wxString& text) {
    if (text.length() > Width() || !CanHold(text))
        return std::nullopt;
    std::optional<wxString> finished = Finish(text);
    if (finished)
        m_held = *finished;
    return finished;
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
