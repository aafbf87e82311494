// Collects cells whose invalid text was replaced, for the report at the end of a command.
#pragma once

#include <wx/string.h>

#include <set>
#include <utility>

/// Cells of the current page by row and column.
using CellSet = std::set<std::pair<int, int>>;

/// Returns rows and columns of cells for a tool tip: "row 5 RxFreq, TxFreq; row 7 Desc". Long lists end in an
/// ellipsis.
wxString CellList(const CellSet& cells);

/// Collects the cells of the current page that checks replace during its lifetime. Nested ones all collect.
class ReplacedCells {
public:
    ReplacedCells();
    ~ReplacedCells();
    ReplacedCells(const ReplacedCells&) = delete;
    ReplacedCells& operator=(const ReplacedCells&) = delete;

    /// Called by checks: records that a cell's text was replaced by one that the user did not enter. A
    /// different form of the same value (case, leading zeros) doesn't count. No effect for columns that the
    /// page doesn't show, or while no ReplacedCells exists.
    static void Note(int row, int column);

    /// Returns the number of replaced cells; one that was replaced again counts once.
    int Count() const { return static_cast<int>(m_cells.size()); }

    /// Returns the first row among them, 0 if there is none.
    int FirstRow() const { return m_cells.empty() ? 0 : m_cells.begin()->first; }

    /// Returns "1 cell replaced, row 5" or "12 cells replaced from row 5"; empty if there is none.
    wxString Text() const;

    /// Returns the rows and columns of all cells, for a tool tip: "12 cells were replaced: row 5 RxFreq,
    /// TxFreq; row 7 Desc". Long lists end in an ellipsis. Empty if there is none.
    wxString Story() const;

private:
    ReplacedCells* const m_outer;
    CellSet m_cells;
};
