#include "editing/RowBand.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "editing/SharedEditors.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

void LockCells(wxGrid* grid, int row, std::initializer_list<int> cols, bool readOnly) {
    for (int col : cols)
        LockCell(grid, row, col, readOnly);
}

/// Writes texts known to be valid, and removes the paint of an earlier repair.
void SetTexts(wxGrid* grid, int row, std::initializer_list<int> cols, const wxString& text) {
    for (int col : cols) {
        grid->SetCellValue(row, col, text);
        TakePaintOff(grid, row, col);
    }
}

} // namespace

wxGridCellEditorPtr FrequencyEditorOf(wxGrid* grid, int band) {
    return TableOf(grid).SharedEditor(FrequencyOfBand + band, [band] {
        const int step = GetChannelStep(CurrentParameters().Radio, band);
        auto* const editor = new FrequencyEditor(0, band, step);
        // On an MDLX page the constructor took the row's band.
        editor->SetEditorFreqParams(band, step);
        return editor;
    });
}

void SetFrequencyEditors(wxGrid* grid, int row, int band) {
    for (int col : {RFRQ, TFRQ})
        TableOf(grid).SetEditor(row, col, FrequencyEditorOf(grid, band));
}

void SetBandEditors(wxGrid* grid, int row, int band, bool bandChanged) {
    const int type = CurrentParameters().Type;
    // A row yet to be filled has the locks of its future texts, but not the texts.
    const bool hasTexts = !IsFilledByEdit(grid, row);
    if (band == Am118To138)
        return;
    if (band == Am225To400) {
        if (type != MDLX)
            return;
        LockCells(grid, row, {MODE, RCOD, TCOD}, true);
        LockCells(grid, row, {RTON, TTON}, false);
        if (hasTexts)
            SetTexts(grid, row, {MODE, RCOD, TCOD}, "n/a");
        for (int col : {RTON, TTON})
            if (hasTexts && (bandChanged || GetToneIndex(grid->GetCellValue(row, col)) < 0))
                SetTexts(grid, row, {col}, "OFF");
        return;
    }
    if (band == Am108To138) {
        if (type != MDLX)
            return;
        if (hasTexts)
            SetTexts(grid, row, {RTON, TTON, RCOD, TCOD}, "n/a");
        LockCells(grid, row, {MODE}, false);
        LockCells(grid, row, {RTON, TTON, RCOD, TCOD}, true);
        return;
    }
    // Intentional: TCOD keeps the read-only mark of a former band until the page is set up again.
    LockCells(grid, row, {MODE, RTON, TTON, RCOD}, false);
    if (!IsP25Type(type))
        return;
    // Intentional: TTON keeps its editor.
    TableOf(grid).SetEditor(row, RTON, wxGridCellEditorPtr());
    LockCell(grid, row, SCAN, grid->GetCellValue(row, ZONE) == ZoneNames32[NP25GuardZone]);
}

void UnlockRow(wxGrid* grid, int row) {
    LockCells(grid, row, {MNUM, SCAN, ZONE, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}, false);
}

void FitRow(wxGrid* grid, int row) {
    if (row == 0)
        LockCell(grid, 0, MNUM);
    const PageParameterRecord& page = CurrentParameters();
    if (page.Type != MDLX)
        return SetBandEditors(grid, row, page.Band);
    const int band = GetBandOfEdit(grid, row);
    SetFrequencyEditors(grid, row, band);
    SetBandEditors(grid, row, band);
}

void FitRowToItsBand(wxGrid* grid, int row) {
    if (CurrentParameters().Type != MDLX)
        return;
    UnlockRow(grid, row);
    TableOf(grid).ForgetEditors(row);
    FitRow(grid, row);
}

void FitUnusedRowsToDefaultBand(wxGrid* grid) {
    const wxGridUpdateLocker quiet(grid);
    for (int row = 1; row <= CurrentParameters().Rows; ++row)
        if (IsFilledByEdit(grid, row))
            FitRowToItsBand(grid, row);
}

void ChangeRowBand(wxGrid* grid, int row, int band) {
    SetTexts(grid, row, {RFRQ, TFRQ}, "");
    SetFrequencyEditors(grid, row, band);
    SetBandEditors(grid, row, band, true);
}
