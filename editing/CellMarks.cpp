#include "editing/CellMarks.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"

void ClearMarksOfRows(wxGrid* grid) {
    TableOf(grid).ChangeLooks([](int row, int col, CellLook& look) {
        look.paint = wxColour();
        if (col != SHAD && !IsGuardRow(row))
            look.readOnly = false;
    });
}

void MakeCellsWritable(wxGrid* grid) {
    TableOf(grid).ChangeLooks([](int, int col, CellLook& look) {
        if (col == SHAD)
            look.readOnly.reset();
        else
            look.readOnly = false;
    });
}
