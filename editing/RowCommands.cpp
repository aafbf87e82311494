// Commands of the row context menu.
#include "editing/RowCommands.h"

#include "catalogue/PageTable.h"
#include "catalogue/RowFilling.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "commands/CommandQuestions.h"
#include "commands/OpenEditor.h"
#include "editing/RowBand.h"
#include "editing/Shadows.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>

#include <vector>

namespace {

/// Returns the last row that moves when rows are inserted or deleted: guard rows stay where they are.
int LastMovingRow() {
    return CurrentParameters().Rows - (HasGuardRows(CurrentPage) ? RadioCatalogue::GuardRowTotal : 0);
}

/// Returns the selected memory rows, from row 1 on.
std::vector<int> SelectedRows() {
    std::vector<int> rows;
    for (int row = 1; row <= CurrentParameters().Rows; ++row)
        if (CurrentGrid()->IsInSelection(row, 0))
            rows.push_back(row);
    return rows;
}

void PaintRow(wxGrid* grid, int row, const wxColour& colour) {
    for (int col = 0; col < ColumnTotal; ++col)
        PaintCell(grid, row, col, colour);
}

/// Moves the texts and looks of a row to another row.
void MoveRow(wxGrid* grid, int from, int to) {
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(to, col, grid->GetCellValue(from, col));
    TableOf(grid).MoveLooks(from, to);
}

/// Resets a row to its state in a new grid.
void MakeRowBlank(wxGrid* grid, int row) {
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(row, col, "");
    TableOf(grid).ForgetLooks(row);
}

/// Releases the zone of the row whose position is the MNUM of the row to be deleted. order maps each position
/// to the grid row that is there after the deletions so far.
void ReleaseZoneOfNumber(wxGrid* grid, int row, const std::vector<int>& order) {
    const int number = ReadDecimal(grid->GetCellValue(row, MNUM));
    if (number >= 1 && number < static_cast<int>(order.size()))
        ReleaseP25ZonePosition(FindZone(grid->GetCellValue(order[static_cast<size_t>(number)], ZONE)));
}

/// Deletes rows (ascending) from rows 1 to last: later rows move up, and blank ones are added at the end.
/// Makes one pass over the page, however many rows are deleted.
void DeleteMemoryRows(wxGrid* grid, const std::vector<int>& rows, int last) {
    std::vector<int> order;
    for (int row = 0; row <= last; ++row)
        order.push_back(row);
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        UndoShadowLinks(*row);
        if (CurrentPageIsP25())
            ReleaseZoneOfNumber(grid, *row, order);
        ClearRowData(*row, false);
        order.erase(order.begin() + *row);
    }
    const int kept = static_cast<int>(order.size());
    for (int row = 1; row <= last; ++row) {
        if (row >= kept)
            MakeRowBlank(grid, row);
        else if (order[static_cast<size_t>(row)] != row)
            MoveRow(grid, order[static_cast<size_t>(row)], row);
    }
}

/// Locks the guard rows again. Clearing makes all cells writable, but users must not change what the radio
/// fixes in its guard rows.
void LockGuardRowsAgain() {
    const wxGrid* grid = CurrentGrid();
    if (HasGuardRows(CurrentPage) && !(grid->IsReadOnly(GD1, MNUM) && grid->IsReadOnly(GD2, MNUM)))
        SetPageEditors(CurrentPage);
}

} // namespace

bool ContextRowIsMemory() {
    return ContextRow >= 1 && ContextRow <= CurrentParameters().Rows;
}

void SelectContextRow(bool addToSelection) {
    if (ContextRow == 0 || ContextRowIsMemory())
        CurrentGrid()->SelectRow(ContextRow, addToSelection);
}

void FixCopiedRow(OrvZELFrame*) {
    if (!CurrentPageIsP25())
        return;
    // Intentional: the copy keeps its flags; only the scan bit is cleared.
    const int flags = ReadHex(RowCopyBuffer[MFLG]);
    if ((flags & LinkFlags) == 0)
        return;
    RowCopyBuffer[SHAD] = "N";
    RowCopyBuffer[PRIM] = RowCopyBuffer[MNUM];
    for (size_t col = SHD0; col <= SHD6; ++col)
        RowCopyBuffer[col] = "0";
    RowCopyBuffer[MFLG] = FlagText(flags & ~ScanFlag);
}

void ZelkFrame::OnDefaultRow(wxCommandEvent&) {
    CommitOpenEditor();
    if (!UserConfirms(IdDefaultRow))
        return;
    wxGridUpdateLocker quiet(CurrentGrid());
    SelectContextRow(true);
    // Intentional: other selected rows are overwritten without undoing their links or releasing their zones.
    if (CurrentPageIsP25() && ContextRowIsMemory() && RowHasData(ContextRow)) {
        UndoShadowLinks(ContextRow);
        ClearRowData(ContextRow, true);
    }
    const std::vector<int> rows = SelectedRows();
    CopyValuesToSelection(CurrentPage, GetRowValues(CurrentPage, 0), true, true);
    for (int row : rows)
        FitRowToItsBand(CurrentGrid(), row);
    LockGuardRowsAgain();
}

void ZelkFrame::OnCopyRow(wxCommandEvent&) {
    CommitOpenEditor();
    SelectContextRow(false);
    RowCopyBuffer.clear();
    if (!ContextRowIsMemory() || !RowHasData(ContextRow)) {
        wxMessageBox("Cannot copy empty row.", "Error - Empty Row!", wxOK | wxCENTRE);
        return;
    }
    RowCopyBuffer = GetRowValues(CurrentPage, ContextRow);
    FixCopiedRow(this);
}

void ZelkFrame::OnClearRow(wxCommandEvent&) {
    CommitOpenEditor();
    if (!UserConfirms(IdClearRow))
        return;
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    for (int row : SelectedRows()) {
        UndoShadowLinks(row);
        ClearRowData(row, CurrentPageIsP25());
        FitRowToItsBand(grid, row);
    }
    LockGuardRowsAgain();
    grid->ClearSelection();
}

void ZelkFrame::OnInsertRow(wxCommandEvent&) {
    CommitOpenEditor();
    const int last = LastMovingRow();
    if (ContextRow < 1 || ContextRow > last || !UserConfirms(IdInsertRow))
        return;
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    const bool guards = HasGuardRows(CurrentPage);
    if (guards)
        SaveGuardRows(this);
    grid->SelectRow(ContextRow, false);
    // Intentional: the last row's content is lost, and its zone slot is not released.
    grid->DeleteRows(last, 1);
    grid->InsertRows(ContextRow, 1);
    // Intentional: no leading zeros, and the numbers in links stay unchanged.
    for (int row = ContextRow + 1; row <= last; ++row)
        if (RowHasData(row))
            grid->SetCellValue(row, MNUM, wxString::Format("%d", row));
    if (guards)
        RestoreGuardRows(this, false);
    SetPageEditors(CurrentPage);
}

void ZelkFrame::OnDeleteRow(wxCommandEvent&) {
    CommitOpenEditor();
    if (!UserConfirms(IdDeleteRow))
        return;
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    const int last = LastMovingRow();
    const bool guards = HasGuardRows(CurrentPage);
    if (guards)
        SaveGuardRows(this);
    // Intentional: neither row 1 nor a guard row is ever deleted.
    std::vector<int> rows = SelectedRows();
    std::erase_if(rows, [last](int row) { return row == 1 || row > last; });
    DeleteMemoryRows(grid, rows, last);
    grid->ClearSelection();
    if (guards) {
        MakeRowBlank(grid, GD1);
        MakeRowBlank(grid, GD2);
        RestoreGuardRows(this, false);
    }
    SetPageEditors(CurrentPage);
}

void ZelkFrame::OnMarkRow(wxCommandEvent&) {
    CommitOpenEditor();
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    for (int row : SelectedRows())
        PaintRow(grid, row, MarkColour);
    grid->ClearSelection();
    CurrentParameters().Flags |= PageHasMarks;
}
