// Cells whose text could not stand and gave way to another, for what a command tells at its end.
#pragma once

#include <wx/string.h>

#include <set>
#include <utility>

/// Collects the cells of the current page that checks replace while it lives. Where one lives within
/// another, both collect.
class ReplacedCells {
public:
    ReplacedCells();
    ~ReplacedCells();
    ReplacedCells(const ReplacedCells&) = delete;
    ReplacedCells& operator=(const ReplacedCells&) = delete;

    /// For checks: the text of a cell was replaced by one that its user did not give. Another form of the
    /// same value (case, leading zeros) is no such text. Without effect for columns that the page doesn't
    /// show, and while no ReplacedCells lives.
    static void Note(int row, int column);

    /// How many cells were replaced; one that was replaced again counts once.
    int Count() const { return static_cast<int>(m_cells.size()); }

    /// The first row among them, 0 when there is none.
    int FirstRow() const { return m_cells.empty() ? 0 : m_cells.begin()->first; }

    /// "1 cell replaced, row 5" or "12 cells replaced from row 5"; empty when there is none.
    wxString Text() const;

    /// The rows and columns of all, for a tool tip: "12 cells were replaced: row 5 RxFreq, TxFreq; row 7
    /// Desc". Long lists end in an ellipsis. Empty when there is none.
    wxString Story() const;

private:
    ReplacedCells* const m_outer;
    std::set<std::pair<int, int>> m_cells; ///< row and column
};
