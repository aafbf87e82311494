#include "editing/ChoiceCells.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "editing/SharedEditors.h"

using namespace RadioCatalogue;

namespace {

/// Distance from a receive tone or code column to its transmit twin.
constexpr int TransmitOffset = TTON - RTON;
static_assert(TCOD - RCOD == TransmitOffset);

/// Writes the choice and removes the paint of an earlier repair.
void WriteChosen(wxGrid* grid, int row, int col, const wxString& text) {
    grid->SetCellValue(row, col, text);
    PaintCell(grid, row, col, grid->GetCellBackgroundColour(0, 0));
}

/// Returns the columns that a choice in col turns off, on pages where a channel has either a tone or a code.
std::initializer_list<int> RivalsOf(int col) {
    static constexpr std::initializer_list<int> codes = {RCOD, TCOD}, tones = {RTON, TTON};
    static constexpr std::initializer_list<int> transmitCode = {TCOD}, transmitTone = {TTON};
    switch (col) {
    case RTON:
        return codes;
    case RCOD:
        return tones;
    case TTON:
        return transmitCode;
    case TCOD:
        return transmitTone;
    default:
        return {};
    }
}

wxGridCellEditorPtr ReceiveSquelchEditor(wxGrid* grid, bool digital) {
    return digital ? TableOf(grid).SharedEditor(ReceiveDigitalSquelch, NewLinkedEditor<RxDigitalSquelch>)
                   : AnalogSquelchEditor(grid);
}

wxGridCellEditorPtr TransmitSquelchEditor(wxGrid* grid, bool digital, bool shadow) {
    if (!digital)
        return AnalogSquelchEditor(grid);
    return shadow
               ? TableOf(grid).SharedEditor(ShadowDigitalSquelch, NewLinkedEditor<TxDigitalSquelchRestricted>)
               : TableOf(grid).SharedEditor(TransmitDigitalSquelch, NewLinkedEditor<TxDigitalSquelch>);
}

/// Writes a squelch known to be valid, and removes the paint of an earlier repair.
void WriteSquelch(wxGrid* grid, int row, int col, const wxString& squelch) {
    grid->SetCellValue(row, col, squelch);
    TakePaintOff(grid, row, col);
}

} // namespace

void TurnRivalsOff(wxGrid* grid, int row, int col) {
    for (int rival : RivalsOf(col))
        grid->SetCellValue(row, rival, "OFF");
}

void ZelkChoiceEditor::ApplyEdit(int row, int col, wxGrid* grid) {
    const bool ownText = IsOwnText(row, col, grid);
    WriteChosen(grid, row, col, m_value);
    if (ownText)
        return;
    if (col == RTON || col == RCOD)
        WriteChosen(grid, row, col + TransmitOffset, m_value);
    const int type = CurrentParameters().Type;
    if (type == ANFM || type == ANAM || type == FXAM)
        TurnRivalsOff(grid, row, col);
    if (!IsP25Type(type))
        return;
    if (col == MODE)
        SetSquelchChoices(grid, row, m_value, true);
    else if (col == RSQL && (m_value == "x" || m_value == "t" || m_value == "c"))
        WriteChosen(grid, row, TSQL, m_value);
}

wxGridCellEditorPtr AnalogSquelchEditor(wxGrid* grid) {
    return TableOf(grid).SharedEditor(AnalogSquelch, NewLinkedEditor<RxAnalogSquelch>);
}

void SetSquelchChoices(wxGrid* grid, int row, const wxString& mode, bool applyDefault) {
    const bool digital = mode == "D";
    const bool shadow = digital && IsShadow(grid, row);
    TableOf(grid).SetEditor(row, RSQL, ReceiveSquelchEditor(grid, digital));
    TableOf(grid).SetEditor(row, TSQL, TransmitSquelchEditor(grid, digital, shadow));
    if (!applyDefault)
        return;
    WriteSquelch(grid, row, RSQL, digital ? "m" : "x");
    WriteSquelch(grid, row, TSQL, digital ? "g" : "x");
}
