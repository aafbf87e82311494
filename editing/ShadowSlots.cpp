#include "editing/ShadowSlots.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"

#include <wx/grid.h>

std::vector<int> ShadowRowsOf(wxGrid* grid, int row) {
    const int rows = CurrentParameters().Rows;
    std::vector<int> shadows;
    if (row < 0 || row > rows)
        return shadows;
    for (int slot = SHD0; slot <= SHD6; ++slot) {
        const int shadow = ReadDecimal(grid->GetCellValue(row, slot));
        if (shadow >= 1 && shadow <= rows && (ReadHex(grid->GetCellValue(shadow, MFLG)) & ShadowIndexMask))
            shadows.push_back(shadow);
    }
    return shadows;
}
