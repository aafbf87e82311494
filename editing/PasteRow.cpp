// The command that pastes the copied row.
#include "editing/CommandQuestions.h"
#include "editing/RowCommands.h"
#include "editing/ScanLock.h"
#include "editing/ZelkEdit.h"
#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>

namespace {

/// A row that nothing has been in lacks the two cells that a paste leaves alone.
void FillUnpastedCells(wxGrid* grid, int row) {
    if (grid->GetCellValue(row, TFLG).empty())
        grid->SetCellValue(row, TFLG, "A0");
    if (CurrentParameters().Type == RadioCatalogue::KDAR && grid->GetCellValue(row, RONL).empty())
        grid->SetCellValue(row, RONL, grid->GetCellValue(0, RONL));
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
    // Meant: one row is pasted, whatever is selected, and links that the row had aren't undone.
    for (int col = 0; col <= SHD6; ++col)
        grid->SetCellValue(ContextRow, col, RowCopyBuffer[static_cast<size_t>(col)]);
    FillUnpastedCells(grid, ContextRow);
    CheckRow(grid, ContextRow);
    if (CurrentPageIsP25())
        SetScanLock(grid, ContextRow);
}
