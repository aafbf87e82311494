// What an operation does to the texts and rows of a grid, to be done again on another grid.
#pragma once

#include <wx/grid.h>

#include <vector>

struct CellTrace {
    enum class Kind { Read, Write, InsertRows, DeleteRows, AppendRows, Clear };
    struct Step {
        Kind kind;
        int row; ///< of InsertRows and DeleteRows the first row
        int col; ///< of InsertRows, DeleteRows and AppendRows the number of rows
        wxString text;
    };
    std::vector<Step> steps;

    /// Does the steps in their order.
    void Replay(wxGrid* grid) const;
};

/// A grid's table of texts that writes down what is done to it.
class TracingTable : public wxGridStringTable {
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
    CellTrace m_trace;
};
