// Read-only state of the SCAN cells of P25 pages.
#pragma once

class wxGrid;

/// Makes SCAN of a row of the current page, which must be a P25 one, read-only or writable. It is read-only
/// in zone "X", which second generation radios never scan, in a primary or shadow, and in a guard row.
void SetScanLock(wxGrid* grid, int row);
