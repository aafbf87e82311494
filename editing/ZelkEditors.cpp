#include "editing/ZelkEditors.h"

#include "catalogue/PageModel.h"

#include <wx/grid.h>

namespace {

/// Columns that the radio fixes in guard rows, by kind of page.
constexpr int GuardLocks[] = {MNUM, SCAN, RTON, RCOD};
constexpr int GuardLocksP25[] = {MNUM, SCAN, ZONE};

} // namespace

void SetPageEditors(int page) {
    wxGrid* grid = PageGrid[page];
    const int rows = PageParameters[page].Rows;
    const bool p25 = RadioCatalogue::IsP25Type(PageParameters[page].Type);
    if (!p25)
        // A page that was another radio's before may have left marks in these columns. Marks of
        // P25 rows stay: shadow rows rely on them.
        for (int row = 0; row <= rows; ++row)
            for (int col : {MNUM, SCAN, ZONE, RFRQ, RTON, RCOD, TFRQ})
                if (grid->IsReadOnly(row, col))
                    grid->SetReadOnly(row, col, false);
    grid->SetReadOnly(0, MNUM, true);
    if (!HasGuardRows(page))
        return;
    for (int row = rows - 1; row <= rows; ++row) {
        if (p25)
            for (int col : GuardLocksP25)
                grid->SetReadOnly(row, col, true);
        else
            for (int col : GuardLocks)
                grid->SetReadOnly(row, col, true);
    }
}

void SetScanCell(wxGrid* grid, int row, int col, const wxString& text, bool) {
    grid->SetCellValue(row, col, text);
}
