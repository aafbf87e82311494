#include "editing/BandCell.h"

#include "catalogue/MemoryRow.h"
#include "editing/FrequencyRules.h"
#include "editing/RowBand.h"

void MDLXBandChoiceEditor::ApplyEdit(int row, int col, wxGrid* grid) {
    if (IsOwnText(row, col, grid))
        return;
    grid->SetCellValue(row, col, m_value);
    const int band = GetRowBand(grid, row);
    if (band != GetFreqBand(grid->GetCellValue(row, RFRQ), RadioCatalogue::ANFM))
        ChangeRowBand(grid, row, band);
    else
        SetBandEditors(grid, row, band);
    if (row == 0)
        FitUnusedRowsToDefaultBand(grid);
}
