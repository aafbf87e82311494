// Command that pastes the copied row.
#include "commands/CommandQuestions.h"
#include "commands/OpenEditor.h"
#include "editing/MemoryNumbers.h"
#include "editing/MissingCells.h"
#include "editing/RowBand.h"
#include "editing/RowCommands.h"
#include "editing/ScanLock.h"
#include "editing/ZelkEdit.h"
#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>

namespace {

/// Adds what a memory of this page needs and the pasted row lacks.
void CompletePastedRow(wxGrid* grid, int row) {
    if (grid->GetCellValue(row, TFLG).empty())
        grid->SetCellValue(row, TFLG, TflgMade);
    MemoryNumberIndex numbers(CurrentParameters().Rows);
    ReplaceImpossibleNumber(grid, row, numbers);
    FillMissingCells(grid, row);
}

} // namespace

void ZelkFrame::OnPasteRow(wxCommandEvent&) {
    CommitOpenEditor();
    if (!ContextRowIsMemory() || !UserConfirms(IdPasteRow))
        return;
    if (RowCopyBuffer.empty()) {
        wxMessageBox("Cannot paste empty row.", "Error - Empty paste buffer!", wxOK | wxCENTRE);
        return;
    }
    wxGrid* grid = CurrentGrid();
    // Intentional: pastes one row, whatever is selected, and doesn't undo links that the row had.
    SetRowValues(grid, ContextRow, RowCopyBuffer, SHD6);
    for (int col = 0; col <= SHD6; ++col)
        TakePaintOff(grid, ContextRow, col);
    CompletePastedRow(grid, ContextRow);
    CheckRow(grid, ContextRow);
    if (CurrentPageIsP25())
        SetScanLock(grid, ContextRow);
    FitRowToItsBand(grid, ContextRow);
}
