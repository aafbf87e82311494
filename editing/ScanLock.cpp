#include "editing/ScanLock.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

bool IsInUnscannedZone(const wxGrid* grid, int row) {
    return CurrentParameters().Type == NP25 && grid->GetCellValue(row, ZONE) == ZoneNames32[NP25GuardZone];
}

/// A pasted copy of a linked row has the row's flags, but no links.
bool IsLinked(const wxGrid* grid, int row) {
    const wxString link = grid->GetCellValue(row, SHAD);
    return link.StartsWith("P-") || link.StartsWith("S-");
}

/// Counts from the page's rows: while a page changes its target, GD1 is still that of the former one.
bool IsGuard(int row) {
    return HasGuardRows(CurrentPage) && row > CurrentParameters().Rows - GuardRowTotal;
}

} // namespace

void SetScanLock(wxGrid* grid, int row) {
    LockCell(grid, row, SCAN, IsInUnscannedZone(grid, row) || IsLinked(grid, row) || IsGuard(row));
}
