// Command that creates a shadow of a P25 memory.
#include "catalogue/TextNumbers.h"
#include "commands/OpenEditor.h"
#include "editing/MemoryNumbers.h"
#include "editing/RowCommands.h"
#include "editing/ShadowDialog.h"
#include "editing/Shadows.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>

namespace {

void Refuse(const wxString& reason) {
    wxMessageBox(reason, "Create Shadow - Error", wxOK | wxCENTRE);
}

void RefuseNumber() {
    Refuse(wxString::Format("Cannot Create Shadow!\nMemory number must be from 1 to %d.",
                            CurrentParameters().Rows));
}

/// True if a shadow with the number would conflict with a memory: one that has the number, or one in the row
/// of that number, which the shadow would overwrite.
bool IsInUse(int number) {
    const int rows = CurrentParameters().Rows;
    return FindDuplicateMNum(0, -1, rows, number) <= rows || RowHasData(number);
}

void MakePrimary(wxGrid* grid, int row, int slot, int shadow) {
    grid->SetCellValue(row, SHAD, wxString::Format("P-%d", slot + 1));
    grid->SetCellValue(row, SHD0 + slot, NumberText(shadow));
    grid->SetCellValue(row, MFLG, FlagText(MemoryFlags(grid, row) | ShadowLinkFlag));
    LockLinkedRow(row, PrimaryRow);
}

void MakeShadow(wxGrid* grid, int row, int slot, int primary) {
    grid->SetCellValue(row, MNUM, NumberText(row));
    grid->SetCellValue(row, SHAD, "S-" + NumberText(primary));
    grid->SetCellValue(row, PRIM, NumberText(primary));
    for (int col = ZONE; col <= TIDC; ++col)
        grid->SetCellValue(row, col, grid->GetCellValue(primary, col));
    for (int col = SHD0; col <= SHD6; ++col)
        grid->SetCellValue(row, col, "0");
    LockLinkedRow(row, ShadowRow);
    grid->SetCellValue(row, MFLG, FlagText(slot + 1));
    grid->SetCellValue(row, TFLG, TflgMade);
    SetRowEditorsP25(grid, row);
}

} // namespace

void ZelkFrame::OnCreateShadow(wxCommandEvent&) {
    CommitOpenEditor();
    wxGrid* grid = CurrentGrid();
    const int rows = CurrentParameters().Rows;
    // The menu may last have been opened on a longer page.
    const bool onPage = ContextRow == 0 || ContextRowIsMemory();
    if (!onPage || !RowIsComplete(ContextRow)) {
        Refuse("Cannot Create Shadow!\nMemory record is empty or incomplete.");
        return;
    }
    const int primary = ReadDecimal(grid->GetCellValue(ContextRow, MNUM));
    if (primary < 1 || primary > rows) {
        RefuseNumber();
        return;
    }
    const int slot = FirstFreeShadowSlot(GetRowValues(CurrentPage, primary));
    ShadowDialog dialog(this, wxString::Format("For Primary: %03d create Shadow: %d", primary, slot + 1));
    if (slot == ShadowLimit) {
        Refuse("Cannot Create Shadow!\nShadow List is full for selected primary.");
        return;
    }
    if (dialog.ShowModal() != wxID_OK) {
        grid->ClearSelection();
        return;
    }
    const std::optional<int> shadow = ReadShadowNumber(dialog.EnteredText(), rows);
    if (!shadow) {
        RefuseNumber();
        return;
    }
    if (IsInUse(*shadow)) {
        Refuse("Selected memory is already in use.");
        return;
    }
    wxGridUpdateLocker quiet(grid);
    MakePrimary(grid, primary, slot, *shadow);
    MakeShadow(grid, *shadow, slot, primary);
    grid->ClearSelection();
}
