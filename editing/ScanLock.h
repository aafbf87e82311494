// Which rows of a P25 page have a SCAN cell that nobody types into.
#pragma once

class wxGrid;

/// Makes SCAN of a row of the current page, which is a P25 one, read-only or writable. It is read-only in
/// zone "X", which second generation radios never scan, in a primary or shadow, and in a guard row.
void SetScanLock(wxGrid* grid, int row);
