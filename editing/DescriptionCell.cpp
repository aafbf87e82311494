#include "editing/DescriptionCell.h"

#include <wx/textctrl.h>

#include <algorithm>

wxIMPLEMENT_DYNAMIC_CLASS(ZelkDescriptionValidator, wxValidator)

    wxBEGIN_EVENT_TABLE(ZelkDescriptionValidator, wxValidator)
EVT_CHAR(ZelkDescriptionValidator::OnChar)
EVT_TEXT_PASTE(wxID_ANY, ZelkDescriptionValidator::OnPaste)
EVT_TEXT(wxID_ANY, ZelkDescriptionValidator::OnText)
EVT_TEXT_MAXLEN(wxID_ANY, ZelkDescriptionValidator::OnTooLong)
wxEND_EVENT_TABLE()

bool ZelkDescriptionValidator::IsValidChar(wxUniChar character) const {
    const auto code = character.GetValue();
    if (m_mode == 5 && code >= 32 && code <= 126)
        return true;
    if ((m_mode == 1 || m_mode == 2) && code >= 32 && code <= 122)
        return true;
    if ((code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') || (code >= 45 && code <= 58))
        return true;
    return code == '+' || code == ' ' || code == '?' || code == '_';
}

bool ZelkDescriptionValidator::WritesUpperCase() const {
    return m_mode == 0 || m_mode == 6 || m_mode == 7;
}

ZelkDescriptionEditor::ZelkDescriptionEditor(size_t maxChars, int mode)
    : TextCellEditor(maxChars), m_rules(nullptr, mode) {
    SetValidator(m_rules);
}

std::optional<wxString> ZelkDescriptionEditor::HoldText(int, int, wxGrid*, const wxString& text) {
    const bool valid =
        std::all_of(text.begin(), text.end(), [this](wxUniChar c) { return m_rules.IsValidChar(c); });
    if (!valid || text.length() > Width())
        return std::nullopt;
    m_held = m_rules.WritesUpperCase() ? text.Upper() : text;
    return m_held;
}

void ZelkDescriptionEditor::ApplyHeldText(int row, int col, wxGrid* grid) {
    grid->SetCellValue(row, col, m_held);
}
