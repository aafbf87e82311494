#include "editing/ChoiceCells.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "editing/FrequencyRules.h"
#include "editing/ZelkEditors.h"

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

void MDLXBandChoiceEditor::ApplyEdit(int row, int col, wxGrid* grid) {
    if (IsOwnText(row, col, grid))
        return;
    grid->SetCellValue(row, col, m_value);
    const int band = GetRowBand(grid, row);
    if (band != GetFreqBand(grid->GetCellValue(row, RFRQ), ANFM))
        ChangeRowBand(grid, row, band);
    else
        SetBandEditors(grid, row, band);
    if (row == 0)
        FitUnusedRowsToDefaultBand(grid);
}
