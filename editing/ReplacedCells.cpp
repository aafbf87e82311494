#include "editing/ReplacedCells.h"

#include "catalogue/PageModel.h"

namespace {

/// The collector created last.
ReplacedCells* innermost = nullptr;

/// A tool tip of more rows would not fit the screen.
constexpr int MostRowsTold = 12;

/// Returns the page's heading of a column, or the column's tag if it is hidden.
wxString ColumnText(int column) {
    const wxString heading = RadioCatalogue::ColumnHeading[CurrentParameters().Type][column];
    return heading.empty() ? wxString(ColumnTag[column]) : heading;
}

} // namespace

wxString CellList(const CellSet& cells) {
    wxString list;
    int told = 0;
    int lastRow = -1;
    for (const auto& [row, column] : cells) {
        if (row != lastRow) {
            if (++told > MostRowsTold)
                return list + "; ...";
            list += wxString::Format("%srow %d", lastRow < 0 ? "" : "; ", row);
        } else {
            list += ",";
        }
        list += " " + ColumnText(column);
        lastRow = row;
    }
    return list;
}

ReplacedCells::ReplacedCells() : m_outer(innermost) {
    innermost = this;
}

ReplacedCells::~ReplacedCells() {
    innermost = m_outer;
}

void ReplacedCells::Note(int row, int column) {
    if (RadioCatalogue::ColumnWidth[CurrentParameters().Type][column] == 0)
        return;
    for (ReplacedCells* collector = innermost; collector; collector = collector->m_outer)
        collector->m_cells.emplace(row, column);
}

wxString ReplacedCells::Text() const {
    if (Count() == 0)
        return {};
    return Count() == 1 ? wxString::Format("1 cell replaced, row %d", FirstRow())
                        : wxString::Format("%d cells replaced from row %d", Count(), FirstRow());
}

wxString ReplacedCells::Story() const {
    if (Count() == 0)
        return {};
    return (Count() == 1 ? wxString("1 cell was replaced: ")
                         : wxString::Format("%d cells were replaced: ", Count())) +
           CellList(m_cells);
}
