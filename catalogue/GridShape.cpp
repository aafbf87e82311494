#include "catalogue/GridShape.h"

#include "catalogue/GridColours.h"
#include "catalogue/HeadingTips.h"
#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/TextSizes.h"

#include <wx/grid.h>

#include <algorithm>

using namespace RadioCatalogue;

void SetUpGrid(wxGrid* grid, int page) {
    const int rows = PageParameters[page].Rows;
    grid->SetTable(new PageTable(rows + 1), true);
    grid->EnableEditing(true);
    grid->EnableGridLines(true);
    grid->EnableDragGridSize(false);
    grid->SetMargins(0, 0);
    grid->EnableDragColMove(false);
    grid->EnableDragColSize(true);
    grid->SetColLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    SetGridColumns(grid, PageParameters[page].Type);
    ExplainHeadings(grid);

    grid->SetDefaultRowSize(RowHeightFor(grid), true);
    grid->EnableDragRowSize(false);
    // Scroll by full rows: the row menu relies on a fully visible first row.
    grid->SetScrollLineY(grid->GetDefaultRowSize());
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    grid->SetRowLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    // Intentional: one label more than there are rows.
    SetGridRowLabels(grid, rows + 1);
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    grid->SetColLabelSize(grid->GetRowSize(1));
    grid->SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_TOP);
    // A text that is cut must not look whole: "51.1375" would pass for a frequency.
    grid->SetDefaultCellFitMode(wxGridFitMode::Ellipsize());
    SetSelectionColours(grid);
}

void SetGridColumns(wxGrid* grid, int type) {
    const wxGridUpdateLocker quiet(grid);
    for (int col = 0; col < ColumnTotal; ++col) {
        // Set the minimum first: a column never becomes narrower than its minimum. A minimum equal
        // to the width keeps users from dragging a hidden column open.
        const int width = ColumnWidthFor(grid, type, col);
        grid->SetColMinimalWidth(col, width);
        grid->SetColSize(col, width);
        grid->SetColLabelValue(col, ColumnHeading[type][col]);
    }
    // The toolkit starts in the first column, which is always hidden, and a change of type can hide
    // the column of the cursor. Typing would then go into an unseen cell.
    if (const int col = grid->GetGridCursorCol(); col < 0 || !grid->IsColShown(col))
        grid->SetGridCursor(std::max(grid->GetGridCursorRow(), 0), MNUM);
}

void SetGridRowLabels(wxGrid* grid, int last) {
    for (int row = 0; row <= last; ++row)
        grid->SetRowLabelValue(row, NumberText(row));
}

void FitGridToTarget(int oldRadio, int oldBandIndex) {
    const int oldRows = RadioRows[oldRadio][oldBandIndex];
    const int newRows = CurrentParameters().Rows;
    wxGrid* grid = CurrentGrid();
    wxGridUpdateLocker quiet(grid);
    if (newRows > oldRows) {
        grid->AppendRows(newRows - oldRows);
        SetGridRowLabels(grid, newRows);
    } else if (newRows < oldRows) {
        // Intentional: the former last row stays, as the new last one.
        grid->DeleteRows(newRows, oldRows - newRows);
    }
    SetGridColumns(grid, CurrentParameters().Type);
}
