// What an operation does to the texts and rows of a grid, to be done again on another grid.
#pragma once

#include "catalogue/PageTable.h"

#include <wx/grid.h>

#include <cstdint>
#include <map>
#include <vector>

struct CellTrace {
    enum class Kind : uint8_t { Read, Write, InsertRows, DeleteRows, AppendRows, Clear };
    struct Step {
        Kind kind;
        int16_t row;       ///< of InsertRows and DeleteRows the first row
        int16_t col;       ///< of InsertRows, DeleteRows and AppendRows the number of rows
        uint16_t text = 0; ///< of Write
    };
    /// Steps are small and each text is there once: to go through them must not cost what is measured.
    std::vector<Step> steps;
    std::vector<wxString> texts;

    /// Does the steps in their order.
    void Replay(wxGrid* grid) const;
};

/// A grid's table of texts that writes down what is done to it. A text that a cell holds already does
/// not get as far as the table: the grid only reads the cell, and so it counts as a read.
class TracingTable : public PageTable {
public:
    /// A table with as many rows and columns as the other, and its texts.
    explicit TracingTable(wxGridTableBase& other);

    /// What has been done so far; from here on the table writes down afresh.
    CellTrace TakeTrace();

    wxString GetValue(int row, int col) override;
    void SetValue(int row, int col, const wxString& text) override;
    void Clear() override;
    bool InsertRows(size_t row, size_t count) override;
    bool AppendRows(size_t count) override;
    bool DeleteRows(size_t row, size_t count) override;

private:
    void Note(CellTrace::Kind kind, size_t row, size_t col);

    CellTrace m_trace;
    std::map<wxString, uint16_t> m_positions; ///< of texts
};
