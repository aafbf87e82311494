#include "editing/FrequencyCell.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "editing/FrequencyRules.h"
#include "editing/Shadows.h"

#include <wx/textctrl.h>

#include <algorithm>

wxIMPLEMENT_DYNAMIC_CLASS(FrequencyValidator, wxValidator)

    wxBEGIN_EVENT_TABLE(FrequencyValidator, wxValidator)
EVT_CHAR(FrequencyValidator::OnChar)
EVT_TEXT_PASTE(wxID_ANY, FrequencyValidator::OnPaste)
EVT_TEXT(wxID_ANY, FrequencyValidator::OnText)
EVT_TEXT_MAXLEN(wxID_ANY, FrequencyValidator::OnTooLong)
wxEND_EVENT_TABLE()

namespace {

/// Returns the text with a decimal point, and without the zeros at its end that exceed the width.
wxString FrequencyWithin(const wxString& text, size_t width) {
    wxString frequency = text;
    frequency.Replace(",", ".");
    if (frequency.find('.') == wxString::npos)
        return frequency;
    while (frequency.length() > width && frequency.EndsWith("0"))
        frequency.RemoveLast();
    return frequency;
}

/// Writes a cell and removes the paint of a repair.
void WriteClean(wxGrid* grid, int row, int col, const wxString& text) {
    grid->SetCellValue(row, col, text);
    PaintCell(grid, row, col, grid->GetCellBackgroundColour(0, 0));
}

} // namespace

int GetRowBand(const wxGrid* grid, int row) {
    return std::max(RadioCatalogue::FindBand(grid->GetCellValue(row, BAND)), 0);
}

bool IsFilledByEdit(const wxGrid* grid, int row) {
    return row > 0 && grid->GetCellValue(row, TFLG).empty();
}

int GetBandOfEdit(const wxGrid* grid, int row) {
    return GetRowBand(grid, IsFilledByEdit(grid, row) ? 0 : row);
}

FrequencyValidator::FrequencyValidator(wxString* value, int row, int band, int step)
    : TextCellValidator(value), m_band(band), m_step(step) {
    if (CurrentParameters().Type == RadioCatalogue::MDLX)
        m_band = GetRowBand(CurrentGrid(), row);
}

void FrequencyValidator::SetFreqParams(int band, int step) {
    m_band = band;
    m_step = step;
}

bool FrequencyValidator::IsValidChar(wxUniChar character) const {
    return (character >= '0' && character <= '9') || character == '.';
}

bool FrequencyValidator::IsGoodKey(wxUniChar character) const {
    if (!IsValidChar(character))
        return false;
    const wxTextCtrl* control = Control();
    if (!control)
        return true;
    const wxString text = control->GetValue();
    const auto caret = static_cast<size_t>(control->GetInsertionPoint());
    return IsOkFreq(text.Left(caret) + character + text.Mid(caret), m_band, m_step);
}

bool FrequencyValidator::IsGoodInsertion(const wxString& left, const wxString& inserted,
                                         const wxString& right) const {
    // Intentional: the "c" makes a paste with a point fail, and lets one of bare digits pass.
    // Intentional: selected text counts, although the paste would replace it.
    return !Control() || IsOkFreq(left + inserted + "c" + right, m_band, m_step);
}

bool FrequencyValidator::CouldBeTyped(const wxString& text) const {
    return std::all_of(text.begin(), text.end(), [this](wxUniChar c) { return IsValidChar(c); }) &&
           IsOkFreq(text, m_band, m_step);
}

FrequencyEditor::FrequencyEditor(int row, int band, int step)
    : FinishedTextEditor(FrequencyWidth(band, step)), m_rules(&m_held, row, band, step),
      m_width(FrequencyWidth(band, step)) {
    SetValidator(m_rules);
}

void FrequencyEditor::BeginEdit(int row, int col, wxGrid* grid) {
    if (CurrentParameters().Type == RadioCatalogue::MDLX)
        TakeBandOfRow(row, grid);
    FinishedTextEditor::BeginEdit(row, col, grid);
}

void FrequencyEditor::TakeBandOfRow(int row, const wxGrid* grid) {
    const int band = GetBandOfEdit(grid, row);
    const int step = RadioCatalogue::GetChannelStep(CurrentParameters().Radio, band);
    SetEditorFreqParams(band, step);
    m_width = FrequencyWidth(band, step);
    if (auto* control = wxDynamicCast(GetWindow(), wxTextCtrl))
        control->SetMaxLength(static_cast<unsigned>(m_width));
}

void FrequencyEditor::SetEditorFreqParams(int band, int step) {
    m_rules.SetFreqParams(band, step);
    // The toolkit validates keys with a copy of the rules; renew it.
    SetValidator(m_rules);
}

bool FrequencyEditor::CanStartWith(wxUniChar character) const {
    return character != '.' && m_rules.IsValidChar(character);
}

std::optional<wxString> FrequencyEditor::Finish(const wxString& typed) const {
    wxString text = typed;
    if (!FormatFreq(text, m_rules.GetBand(), m_rules.GetStep(), m_width))
        return std::nullopt;
    return text;
}

std::optional<wxString> FrequencyEditor::HoldText(int row, int col, wxGrid* grid, const wxString& text) {
    if (CurrentParameters().Type == RadioCatalogue::MDLX)
        TakeBandOfRow(row, grid);
    if (col == TFRQ && m_rules.GetBand() == RadioCatalogue::Am108To138 && text.CmpNoCase("n/a") == 0)
        return m_held = "n/a";
    return FinishedTextEditor::HoldText(row, col, grid, FrequencyWithin(text, m_width));
}

void FrequencyEditor::ApplyEdit(int row, int col, wxGrid* grid) {
    WriteClean(grid, row, col, m_held);
    const bool rxOnly = CheckRxOnlyFreq(m_held);
    if (col == RFRQ && !rxOnly)
        WriteClean(grid, row, TFRQ, m_held);
    if (col == TFRQ && rxOnly)
        grid->SetCellValue(row, TFRQ, "n/a");
    if (CurrentPageIsP25() && IsPrimary(grid, row))
        HandleP25Shadows(this, ReadDecimal(grid->GetCellValue(row, MNUM)), m_held, grid);
    m_held.clear();
}
