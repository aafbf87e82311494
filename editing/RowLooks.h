// What rows leave on their cells besides text: read-only marks and paint.
#pragma once

#include <wx/grid.h>

/// Calls work(row, column, attributes) for each cell of the grid that has attributes of its own.
template <class Work>
void ForEachOwnAttribute(wxGrid* grid, Work work) {
    for (int row = 0; row < grid->GetNumberRows(); ++row)
        for (int col = 0; col < grid->GetNumberCols(); ++col)
            if (wxGridCellAttrPtr own = grid->GetTable()->GetAttrPtr(row, col, wxGridCellAttr::Cell))
                work(row, col, *own);
}

/// Takes away what former rows of the current page left on their cells, but not the marks that the
/// page itself needs: those of the guard rows and of SHAD, into which no one types.
void ForgetLooksOfRows(wxGrid* grid);
