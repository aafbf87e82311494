// Commands of the column and corner context menus, and of row label 000.
#include "editing/ColumnCommands.h"

#include "catalogue/RowFilling.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "commands/CommandQuestions.h"
#include "commands/OpenEditor.h"
#include "editing/CellMarks.h"
#include "editing/ChoiceCells.h"
#include "editing/RowBand.h"
#include "editing/RowCommands.h"
#include "editing/ScanLock.h"
#include "editing/ZelkEdit.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>

namespace {

/// Distance from a receive column to its transmit column; one more for RFRQ and TFRQ.
constexpr int TransmitDistance = TTON - RTON;

void DealZoneAfresh(wxGrid* grid, int row) {
    grid->SetCellValue(row, TFLG, FlagText(TransferFlags(grid, row) & ~ZoneTakenFlag));
    CheckZone(grid, row, "");
    SetScanLock(grid, row);
}

/// Writes a value that the user asked for, and removes the paint of an earlier repair.
void WriteDefault(wxGrid* grid, int row, int col, const wxString& value) {
    grid->SetCellValue(row, col, value);
    TakePaintOff(grid, row, col);
}

/// Moves a row of a module page to the default row's band, if it has a different one.
void TakeDefaultBand(wxGrid* grid, int row, const wxString& value) {
    const int band = GetRowBand(grid, 0);
    if (GetRowBand(grid, row) == band)
        return;
    WriteDefault(grid, row, BAND, value);
    ChangeRowBand(grid, row, band);
}

/// Returns the column selected by a click on its label, as seen in row 1; TIDC if it is none of the others.
int SelectedColumn(wxGrid* grid) {
    int col = MFLG;
    while (col < TIDC && !grid->IsInSelection(1, col))
        ++col;
    return col == TIDC && grid->IsInSelection(1, RONL) ? static_cast<int>(RONL) : col;
}

/// A new mode sets the squelches of a P25 row, as a choice in the cell does; its present mode doesn't.
void TakeDefaultMode(wxGrid* grid, int row, const wxString& value) {
    const bool changes = grid->GetCellValue(row, MODE) != value;
    WriteDefault(grid, row, MODE, value);
    if (changes)
        SetSquelchChoices(grid, row, value, true);
}

/// Writes the default of the selected column into the memory rows for which applies(row) holds.
template <class Condition>
void DefaultSelectedColumn(Condition applies) {
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    const int col = SelectedColumn(grid);
    const wxString value = grid->GetCellValue(0, col);
    if (col == ZONE)
        // Intentional: clears all slots, even if only some rows get a zone afterwards.
        ClearZoneSlots(CurrentPage);
    for (int row = 1; row <= CurrentParameters().Rows; ++row)
        if (applies(row))
            DefaultColInRow(row, col, value);
    grid->ClearSelection();
}

/// Renumbers the rows with data; numberOf returns the number of a row.
template <class Numbering>
void Renumber(Numbering numberOf) {
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    for (int row = 1; row <= CurrentParameters().Rows; ++row) {
        if (!RowHasData(row))
            continue;
        // Intentional: no leading zeros, and shadow links keep the former numbers.
        const wxString number = wxString::Format("%d", numberOf(row));
        grid->SetCellValue(row, MNUM, number);
        if (CurrentPageIsP25())
            grid->SetCellValue(row, PRIM, number);
    }
    grid->ClearSelection();
}

void TellUnimplemented(const wxString& caption) {
    wxMessageBox(" ! Currently UnImplemented !", caption, wxOK | wxCENTRE);
}

} // namespace

void DefaultColInRow(int row, int col, const wxString& value) {
    wxGrid* grid = CurrentGrid();
    if (CurrentPageIsP25() && col == ZONE) {
        DealZoneAfresh(grid, row);
        return;
    }
    if (CurrentParameters().Type == RadioCatalogue::MDLX && col == BAND) {
        TakeDefaultBand(grid, row, value);
        return;
    }
    if (CurrentPageIsP25() && col == MODE) {
        TakeDefaultMode(grid, row, value);
        return;
    }
    WriteDefault(grid, row, col, value);
    if (col == RFRQ)
        WriteDefault(grid, row, TFRQ, value);
    else if (col >= RTON && col <= RNAC)
        WriteDefault(grid, row, col + TransmitDistance, value);
    // On analog pages a row has a tone or a code, not both.
    if (!CurrentPageIsP25())
        TurnRivalsOff(grid, row, col);
    if (CurrentParameters().Type == RadioCatalogue::MDLX)
        // Restore what the band fixes in the row.
        SetBandEditors(grid, row, GetBandOfEdit(grid, row));
}

void ZelkFrame::OnDefaultCol(wxCommandEvent&) {
    CommitOpenEditor();
    if (UserConfirms(IdDefaultCol))
        DefaultSelectedColumn(RowHasData);
}

void ZelkFrame::OnDefaultMarked(wxCommandEvent&) {
    CommitOpenEditor();
    if (UserConfirms(IdDefaultMarked))
        DefaultSelectedColumn(
            [](int row) { return CurrentGrid()->GetCellBackgroundColour(row, MNUM) == MarkColour; });
}

void ZelkFrame::OnRenumberToRowNum(wxCommandEvent&) {
    CommitOpenEditor();
    if (UserConfirms(IdRenumberToRowNum))
        Renumber([](int row) { return row; });
}

void ZelkFrame::OnRenumberSequencial(wxCommandEvent&) {
    CommitOpenEditor();
    if (UserConfirms(IdRenumberSequencial))
        Renumber([next = 0](int) mutable { return ++next; });
}

void ZelkFrame::OnDefaultFile(wxCommandEvent&) {
    CommitOpenEditor();
    if (!UserConfirms(IdDefaultFile))
        return;
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    SelectContextRow(true);
    const wxArrayString defaults = GetRowValues(CurrentPage, 0);
    grid->ClearGrid();
    CurrentParameters().Flags = 0;
    ClearZoneSlots(CurrentPage);
    ClearMarksOfRows(grid);
    SetRowValues(grid, 0, defaults);
    CopyValuesToSelection(CurrentPage, defaults, true, true);
    // Editors and locks of the former rows must not remain.
    SetPageEditors(CurrentPage);
}

// Intentional: neither command does more than this.
void ZelkFrame::OnSaveDefault(wxCommandEvent&) {
    TellUnimplemented("Save Radio Default Data?");
}

void ZelkFrame::OnLoadDefault(wxCommandEvent&) {
    TellUnimplemented("Load Radio Default Data");
}

void TellCopyIsMissing() {
    wxMessageBox("Copy selection to clipboard.\n\nNot implemented yet.", "Copy", wxOK | wxCENTRE);
}

void TellPasteIsMissing() {
    wxMessageBox("Paste contents of clipboard.\n\nNot implemented yet.", "Paste", wxOK | wxCENTRE);
}
