#include "editing/RowLooks.h"

#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"

void ForgetLooksOfRows(wxGrid* grid) {
    ForEachOwnAttribute(grid, [](int row, int col, wxGridCellAttr& attributes) {
        if (attributes.HasBackgroundColour())
            attributes.SetBackgroundColour(wxNullColour);
        if (col != SHAD && !IsGuardRow(row) && attributes.IsReadOnly())
            attributes.SetReadOnly(false);
    });
}
