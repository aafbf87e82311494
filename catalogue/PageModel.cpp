#include "catalogue/PageModel.h"

#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"

#include <wx/grid.h>

#include <algorithm>

ZelkFrame* MainFrame = nullptr;
int32_t PageCount = 0;
int32_t CurrentPage = 0;
NumberedArray<wxGrid*, PageLimit> PageGrid{};
NumberedArray<PageParameterRecord, PageLimit> PageParameters{};
NumberedArray<PageStringRecord, PageLimit> PageStrings{};
NumberedArray<uint32_t, PageLimit> OpModes{};
int32_t GD1 = -1;
int32_t GD2 = -1;
int32_t ContextRow = 0;
wxArrayString RowCopyBuffer;
const wxColour FailColour(235, 125, 50);
const wxColour MarkColour(105, 160, 170);

namespace {

/// The cells of GD1 and GD2 between SaveGuardRows and RestoreGuardRows.
NumberedArray<wxArrayString, 2> guardRowImages;

/// True when a complete row needs text in the column.
bool CountsForCompleteness(int type, int col, bool shadow) {
    using namespace RadioCatalogue;
    if (ColumnWidth[type][col] == 0)
        return false;
    if (col == ZONE && shadow)
        return false;
    if (type == FXAM && (col == RTON || col == TTON))
        return false;
    return !(type == O12 && col == RONL);
}

} // namespace

PageParameterRecord& CurrentParameters() {
    return PageParameters[CurrentPage];
}

wxGrid* CurrentGrid() {
    return PageGrid[CurrentPage];
}

bool CurrentPageIsP25() {
    return RadioCatalogue::IsP25Type(CurrentParameters().Type);
}

wxArrayString GetRowValues(int page, int row) {
    wxArrayString values;
    values.reserve(ColumnTotal);
    for (int col = 0; col < ColumnTotal; ++col)
        values.push_back(PageGrid[page]->GetCellValue(row, col));
    return values;
}

void SetRowValues(wxGrid* grid, int row, const wxArrayString& texts, int lastColumn) {
    for (int col = 0; col <= lastColumn; ++col)
        grid->SetCellValue(row, col, texts[static_cast<size_t>(col)]);
}

namespace {

bool HasText(wxGrid* grid, int row) {
    for (int col = 0; col < ColumnTotal; ++col)
        if (!grid->GetCellValue(row, col).empty())
            return true;
    return false;
}

} // namespace

bool RowHasData(int row) {
    return HasText(CurrentGrid(), row);
}

bool RowIsComplete(int row) {
    wxGrid* grid = CurrentGrid();
    const int type = CurrentParameters().Type;
    const bool shadow = IsShadow(grid, row);
    for (int col = 0; col < ColumnTotal; ++col)
        if (CountsForCompleteness(type, col, shadow) && grid->GetCellValue(row, col).empty())
            return false;
    return true;
}

int CountRowsWithData(int page) {
    int count = 0;
    for (int row = 0; row < PageParameters[page].Rows; ++row)
        count += HasText(PageGrid[page], row);
    return count;
}

bool HasGuardRows(int page) {
    return PageParameters[page].Rows % 10 == 2;
}

bool IsGuardRow(int row) {
    return HasGuardRows(CurrentPage) && row >= GD1;
}

void SetGuardRows(OrvZELFrame*, int page, int rows) {
    GD1 = GD2 = -1;
    if (HasGuardRows(page)) {
        GD1 = rows - 1;
        GD2 = rows;
    }
}

void TakePaintOff(wxGrid* grid, int row, int col) {
    if (TableOf(grid).LookOf(row, col).paint == FailColour)
        PaintCell(grid, row, col, grid->GetCellBackgroundColour(0, 0));
}

namespace {

bool IsBlankImage(const wxArrayString& texts) {
    return std::all_of(texts.begin(), texts.end(), [](const wxString& text) { return text.empty(); });
}

} // namespace

void SaveGuardRows(OrvZELFrame*) {
    guardRowImages[0] = GetRowValues(CurrentPage, GD1);
    guardRowImages[1] = GetRowValues(CurrentPage, GD2);
}

void RestoreGuardRows(OrvZELFrame*, bool renumber) {
    wxGrid* grid = CurrentGrid();
    for (int guard = 0; guard < 2; ++guard) {
        const int row = guard == 0 ? GD1 : GD2;
        const wxArrayString& texts = guardRowImages[guard];
        if (renumber && IsBlankImage(texts))
            continue;
        SetRowValues(grid, row, texts);
        if (renumber)
            grid->SetCellValue(row, MNUM, NumberText(row));
    }
}

int GetCodeIndex(const wxString& text) {
    return RadioCatalogue::CodeIndexForType(text, CurrentParameters().Type);
}

wxString GetCodeText(int i) {
    return RadioCatalogue::GetCodeText(i, CurrentParameters().Type);
}
