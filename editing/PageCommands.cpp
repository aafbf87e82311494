// Commands of the Data menu that act on the whole page.
#include "catalogue/PageTable.h"
#include "commands/OpenEditor.h"
#include "commands/StatusOutcome.h"
#include "editing/ReplacedCells.h"
#include "editing/ZelkEdit.h"
#include "frame/ZelkMain.h"

#include <wx/msgdlg.h>

void ZelkFrame::OnValidatePage(wxCommandEvent&) {
    CommitOpenEditor();
    wxMessageBox("Validate row data", "Validate Page", wxOK | wxCENTRE);
    const ReplacedCells replaced;
    CheckPage();
    TellOutcome(replaced.Count() == 0 ? wxString("No cell replaced") : replaced.Text(), replaced.Story());
}

void ZelkFrame::OnSelectAll(wxCommandEvent&) {
    CurrentGrid()->SelectAll();
}

void ZelkFrame::OnDeSelectAll(wxCommandEvent&) {
    CurrentGrid()->ClearSelection();
}

void ZelkFrame::OnClearHighlight(wxCommandEvent&) {
    CommitOpenEditor();
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    const wxColour plain = grid->GetCellBackgroundColour(0, 0);
    // Intentional: hidden columns keep their marks.
    for (int row = 0; row <= CurrentParameters().Rows; ++row)
        for (int col = 0; col < ColumnTotal; ++col)
            if (RadioCatalogue::ColumnWidth[CurrentParameters().Type][col] != 0)
                PaintCell(grid, row, col, plain);
    CurrentParameters().Flags &= ~PageHasMarks;
    grid->ForceRefresh();
}
