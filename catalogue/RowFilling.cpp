#include "catalogue/RowFilling.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneDealing.h"
#include "catalogue/ZoneSlots.h"

#include <wx/grid.h>

#include <algorithm>

using namespace RadioCatalogue;

namespace {

/// Fills the starting rows of a P25 page that are blank; after a change of target they can hold memories.
void FillStartingRows() {
    CurrentGrid()->ClearSelection();
    for (int row : {1, GD1, GD2})
        if (row >= 1 && !RowHasData(row))
            FillRowsFromDefault({row});
}

} // namespace

void SetPageDefaults(OrvZELFrame*, int page) {
    const PageParameterRecord& parameters = PageParameters[page];
    wxGrid* grid = PageGrid[page];
    int defaultRow = parameters.Band;
    if (parameters.Radio == Kdrv716B)
        defaultRow = Kdrv716BDefaultRow;
    else if (parameters.Radio == Kdar2000)
        defaultRow = Kdar2000DefaultRow;
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(0, col, PageDefault[defaultRow][col]);

    if (IsP25Type(parameters.Type)) {
        FillStartingRows();
        ZoneList = ZoneNames(CurrentParameters().Type);
    }
    LockCell(grid, 0, MNUM);
    grid->ForceRefresh();
}

bool NumberedDescription(const wxString& text, int width, wxString& base) {
    size_t length = text.length();
    while (length > 0 && text[length - 1] >= '0' && text[length - 1] <= '9')
        --length;
    if (length == text.length())
        return false;
    base = text.Left(std::min<size_t>(length, static_cast<size_t>(width - 3)));
    return true;
}

namespace {

/// A row image, prepared for writing into rows of a page.
class RowImage {
public:
    RowImage(int page, const wxArrayString& values, bool allColumns)
        : m_grid(PageGrid[page]), m_values(values), m_lastColumn(allColumns ? TFLG : SHD6),
          m_p25(IsP25Type(PageParameters[page].Type)),
          m_numbered(NumberedDescription(values[DESC], m_p25 ? 8 : 9, m_baseText)) {}

    void WriteInto(int row, bool renumber) const {
        SetRowValues(m_grid, row, m_values, m_lastColumn);
        for (int col = 0; col <= m_lastColumn; ++col)
            TakePaintOff(m_grid, row, col);
        if (m_numbered)
            m_grid->SetCellValue(row, DESC, m_baseText + NumberText(row));
        if (renumber) {
            m_grid->SetCellValue(row, MNUM, NumberText(row));
            if (m_p25)
                m_grid->SetCellValue(row, PRIM, NumberText(row));
        }
        if (m_p25)
            DealZone(m_grid, row, wxString());
    }

private:
    wxGrid* m_grid;
    const wxArrayString& m_values;
    int m_lastColumn;
    bool m_p25;
    wxString m_baseText;
    bool m_numbered;
};

} // namespace

void CopyValuesToRow(int page, const wxArrayString& values, int row) {
    RowImage(page, values, true).WriteInto(row, true);
}

void FillRowsFromDefault(std::initializer_list<int> rows) {
    wxGrid* grid = CurrentGrid();
    const wxGridUpdateLocker quiet(grid);
    grid->ClearSelection();
    const wxArrayString values = GetRowValues(CurrentPage, 0);
    const RowImage image(CurrentPage, values, true);
    for (int row : rows)
        if (row >= 1 && row <= CurrentParameters().Rows)
            image.WriteInto(row, true);
}

void CopyValuesToSelection(int page, const wxArrayString& values, bool renumber, bool allColumns) {
    wxGrid* grid = PageGrid[page];
    const RowImage image(page, values, allColumns);
    const wxGridUpdateLocker quiet(grid);
    for (int row = 1; row <= PageParameters[page].Rows; ++row)
        if (grid->IsInSelection(row, 0))
            image.WriteInto(row, renumber);
    grid->ClearSelection();
}

void ClearRowData(int row, bool releaseZone) {
    wxGrid* grid = CurrentGrid();
    if (releaseZone) {
        const int number = ReadDecimal(grid->GetCellValue(row, MNUM));
        if (number >= 1 && number <= CurrentParameters().Rows)
            ReleaseP25ZonePosition(FindZone(grid->GetCellValue(number, ZONE)));
    }
    for (int col = 0; col < ColumnTotal; ++col) {
        grid->SetCellValue(row, col, "");
        TakePaintOff(grid, row, col);
        // Keep the mark on SHAD: users never type into that column, whatever the row is.
        if (col != SHAD)
            LockCell(grid, row, col, false);
    }
}
