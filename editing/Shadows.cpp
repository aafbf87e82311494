#include "editing/Shadows.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/RowFilling.h"
#include "catalogue/TextNumbers.h"

#include <wx/grid.h>

#include <algorithm>

namespace {

bool IsMemoryRow(int row) {
    return row >= 1 && row <= CurrentParameters().Rows;
}

/// True if the row can be one that a slot names. After rows have moved, a slot can name a row of another
/// memory, which must not be changed.
bool IsShadowRow(wxGrid* grid, int row) {
    return IsMemoryRow(row) && IsShadow(grid, row);
}

} // namespace

int FirstFreeShadowSlot(const wxArrayString& rowTexts) {
    int slot = 0;
    while (slot < ShadowLimit && ReadDecimal(rowTexts[static_cast<size_t>(SHD0 + slot)]) != 0)
        ++slot;
    return slot;
}

std::vector<int> ShadowNumbers(const wxArrayString& rowTexts) {
    std::vector<int> numbers;
    for (size_t col = SHD0; col <= SHD6; ++col)
        if (const int number = ReadDecimal(rowTexts[col]))
            numbers.push_back(number);
    return numbers;
}

std::vector<int> ShadowRowsOf(wxGrid* grid, int row) {
    std::vector<int> shadows;
    if (IsMemoryRow(row))
        for (int slot = SHD0; slot <= SHD6; ++slot)
            if (const int shadow = ReadDecimal(grid->GetCellValue(row, slot)); IsShadowRow(grid, shadow))
                shadows.push_back(shadow);
    return shadows;
}

std::optional<int> ReadShadowNumber(const wxString& text, int rows) {
    const auto isDigit = [](wxUniChar c) { return c >= '0' && c <= '9'; };
    if (!std::all_of(text.begin(), text.end(), isDigit))
        return std::nullopt;
    const std::optional<int> number = ReadNumber(text);
    return number && *number >= 1 && *number <= rows ? number : std::nullopt;
}

int GetMnumRow(int number) {
    wxGrid* grid = CurrentGrid();
    const int rows = CurrentParameters().Rows;
    int row = 1;
    while (row <= rows && ReadNumber(grid->GetCellValue(row, MNUM)) != number)
        ++row;
    return row;
}

void LockLinkedRow(int row, int kind) {
    wxGrid* grid = CurrentGrid();
    for (int col : {MNUM, SHAD, SCAN})
        LockCell(grid, row, col);
    grid->SetCellValue(row, SCAN, "N");
    if (kind == ShadowRow)
        for (int col : {ZONE, RFRQ, TFRQ})
            LockCell(grid, row, col);
}

void HandleP25Shadows(wxGridCellEditor*, int number, const wxString&, wxGrid* grid) {
    for (int shadow : ShadowRowsOf(grid, number))
        for (int col : {RFRQ, TFRQ}) {
            grid->SetCellValue(shadow, col, grid->GetCellValue(number, col));
            TakePaintOff(grid, shadow, col);
        }
}

void RemovePrimary(int row) {
    for (int number : ShadowNumbers(GetRowValues(CurrentPage, row)))
        if (const int shadow = GetMnumRow(number); IsShadowRow(CurrentGrid(), shadow))
            ClearRowData(shadow, false);
}

void RemoveShadow(int row) {
    wxGrid* grid = CurrentGrid();
    const int primary = GetMnumRow(ReadDecimal(grid->GetCellValue(row, PRIM)));
    // Intentional: the primary keeps its flag, its SHAD and its locks, even when its last shadow is removed.
    // Intentional: after a check, PRIM of a shadow names the shadow itself; the primary's slot stays taken.
    if (IsMemoryRow(primary))
        for (int col = SHD0; col <= SHD6; ++col)
            if (ReadDecimal(grid->GetCellValue(primary, col)) == row)
                grid->SetCellValue(primary, col, "0");
    ClearRowData(row, false);
}

void UndoShadowLinks(int row) {
    if (!CurrentPageIsP25())
        return;
    if (IsPrimary(CurrentGrid(), row))
        RemovePrimary(row);
    else if (IsShadow(CurrentGrid(), row))
        RemoveShadow(row);
}
