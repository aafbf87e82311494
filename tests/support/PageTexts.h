// Contents of a page, as texts and rows that a failing test can print.
#pragma once

#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"

#include <wx/grid.h>

#include <string>
#include <vector>

namespace testbench {

/// The 32 cells of a row of the current page, in UTF-8.
inline std::vector<std::string> RowTexts(int row) {
    std::vector<std::string> texts;
    for (int col = 0; col < ColumnTotal; ++col)
        texts.push_back(CurrentGrid()->GetCellValue(row, col).utf8_string());
    return texts;
}

/// Rows of the current page with a text in any cell: memory rows, with `first` 0 also the default row.
inline std::vector<int> FilledRows(int first = 1) {
    const std::vector<std::string> blank(ColumnTotal);
    std::vector<int> rows;
    for (int row = first; row < CurrentGrid()->GetNumberRows(); ++row)
        if (RowTexts(row) != blank)
            rows.push_back(row);
    return rows;
}

} // namespace testbench
