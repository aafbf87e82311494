// Record of what an operation does to the texts and rows of a grid, for replay on another grid.
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
        int16_t row;       ///< first row for InsertRows and DeleteRows
        int16_t col;       ///< number of rows for InsertRows, DeleteRows and AppendRows
        uint16_t text = 0; ///< index into texts, for Write
    };
    /// Steps are small and each text is stored once, so that reading them doesn't distort the measurement.
    std::vector<Step> steps;
    std::vector<wxString> texts;

    /// Performs the steps in order.
    void Replay(wxGrid* grid) const;
};

/// A grid's table of texts that records its operations. Writing a text that a cell already holds counts as a
/// read: the grid then only reads the cell and doesn't write to the table.
class TracingTable : public PageTable {
public:
    /// Makes a table with as many rows and columns as the other, and with its texts.
    explicit TracingTable(wxGridTableBase& other);

    /// Returns the operations so far and starts a new trace.
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
    std::map<wxString, uint16_t> m_positions; ///< index of each text in the trace
};
