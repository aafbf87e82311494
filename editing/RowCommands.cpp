// The commands of the row context menu.
#include "editing/RowCommands.h"

#include "catalogue/PageTable.h"
#include "catalogue/RowFilling.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "commands/CommandQuestions.h"
#include "commands/OpenEditor.h"
#include "editing/Shadows.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>

#include <vector>

namespace {

/// The last row that moves when rows are inserted or deleted: guard rows stay where they are.
int LastMovingRow() {
    return CurrentParameters().Rows - (HasGuardRows(CurrentPage) ? RadioCatalogue::GuardRowTotal : 0);
}

/// The memory rows that are selected, from row 1 on.
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

/// Texts and looks of a row go into another row.
void MoveRow(wxGrid* grid, int from, int to) {
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(to, col, grid->GetCellValue(from, col));
    TableOf(grid).MoveLooks(from, to);
}

/// Makes a row as it is in a new grid.
void MakeRowBlank(wxGrid* grid, int row) {
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(row, col, "");
    TableOf(grid).ForgetLooks(row);
}

/// Gives back the zone of the row whose position is the MNUM of the row to be deleted. order holds,
/// by position, the row of the grid that stands there once the rows deleted so far have gone.
void ReleaseZoneOfNumber(wxGrid* grid, int row, const std::vector<int>& order) {
    const int number = ReadDecimal(grid->GetCellValue(row, MNUM));
    if (number >= 1 && number < static_cast<int>(order.size()))
        ReleaseP25ZonePosition(FindZone(grid->GetCellValue(order[static_cast<size_t>(number)], ZONE)));
}

/// Deletes the rows (ascending) out of rows 1 to last: those behind them move up, and blank ones
/// come in at the end. One pass over the page, however many rows go.
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

/// Cleared rows are writable throughout, but what the radio fixes in its guard rows isn't for users.
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
    // Meant: the flags themselves stay in the copy; only the scan bit goes.
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
    // Meant: other selected rows are overwritten as they are, links and zones included.
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
    // Meant: what the last row held is lost, and its zone slot is not given back.
    grid->DeleteRows(last, 1);
    grid->InsertRows(ContextRow, 1);
    // Meant: no leading zeros, and the numbers that links hold stay as they were.
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
    // Meant: row 1 is never deleted, nor is a guard row.
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
