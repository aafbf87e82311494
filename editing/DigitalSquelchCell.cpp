#include "editing/DigitalSquelchCell.h"

#include "catalogue/HexDigits.h"
#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"

#include <wx/textctrl.h>

#include <algorithm>

wxIMPLEMENT_DYNAMIC_CLASS(DigitalSquelchValidator, wxValidator)

    wxBEGIN_EVENT_TABLE(DigitalSquelchValidator, wxValidator)
EVT_CHAR(DigitalSquelchValidator::OnChar)
EVT_TEXT_PASTE(wxID_ANY, DigitalSquelchValidator::OnPaste)
EVT_TEXT(wxID_ANY, DigitalSquelchValidator::OnText)
EVT_TEXT_MAXLEN(wxID_ANY, DigitalSquelchValidator::OnTooLong)
wxEND_EVENT_TABLE()

bool DigitalSquelchValidator::TransferToWindow() {
    if (!m_value)
        return true;
    wxTextCtrl* control = Control();
    if (!control)
        return false;
    BeginOwnChange();
    control->SetValue(*m_value);
    EndOwnChange();
    return true;
}

bool DigitalSquelchValidator::TransferFromWindow() {
    if (!m_value)
        return true;
    const wxTextCtrl* control = Control();
    if (!control)
        return false;
    *m_value = control->GetValue();
    return true;
}

void DigitalSquelchValidator::SetRange(int min, int max) {
    m_min = min;
    m_max = max;
}

bool DigitalSquelchValidator::IsValidChar(wxUniChar character) const {
    return IsHexDigit(character.GetValue());
}

DigitalSquelchEditor::DigitalSquelchEditor(size_t maxChars, int min, int max)
    : FinishedTextEditor(maxChars), m_rules(&m_held, min, max) {
    SetValidator(m_rules);
}

std::optional<wxString> DigitalSquelchEditor::Finish(const wxString& typed) const {
    return ("0000" + typed.Upper()).Right(Width());
}

bool DigitalSquelchEditor::CanHold(const wxString& text) const {
    return std::all_of(text.begin(), text.end(), [this](wxUniChar c) { return m_rules.IsValidChar(c); });
}

void DigitalSquelchEditor::ApplyEdit(int row, int col, wxGrid* grid) {
    grid->SetCellValue(row, col, m_held);
    if (col == RTGP || col == RNAC) {
        const int twin = col == RTGP ? TTGP : TNAC;
        grid->SetCellValue(row, twin, m_held);
        TakePaintOff(grid, row, twin);
    }
    m_held.clear();
}
