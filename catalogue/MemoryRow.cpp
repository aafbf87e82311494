#include "catalogue/MemoryRow.h"

#include "catalogue/TextNumbers.h"

#include <wx/grid.h>

int MemoryFlags(const wxGrid* grid, int row) {
    return ReadHex(grid->GetCellValue(row, MFLG));
}

int TransferFlags(const wxGrid* grid, int row) {
    return ReadHex(grid->GetCellValue(row, TFLG));
}

bool IsShadow(const wxGrid* grid, int row) {
    return (MemoryFlags(grid, row) & ShadowIndexMask) != 0;
}

bool IsPrimary(const wxGrid* grid, int row) {
    return (MemoryFlags(grid, row) & ShadowLinkFlag) != 0;
}
