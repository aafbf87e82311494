// The table of a page's grid: its texts, and the editors and looks of its cells.
#pragma once

#include "catalogue/MemoryRow.h"
#include "catalogue/NumberedArray.h"

#include <wx/grid.h>

#include <map>
#include <optional>
#include <utility>
#include <vector>

/// How a cell differs from its column.
struct CellLook {
    std::optional<bool> readOnly; ///< no value: as the column
    wxColour paint;               ///< background; invalid for the grid's own
    wxGridCellEditorPtr editor;   ///< null for the column's

    bool IsPlain() const { return !readOnly && !paint.IsOk() && !editor; }
    bool operator==(const CellLook& other) const {
        return readOnly == other.readOnly && paint == other.paint && editor.get() == other.editor.get();
    }
};

/// Holds texts, and attributes by column. A cell has its own attribute only where it differs from its column;
/// cells with the same differences share one. Rows have no attributes.
class PageTable : public wxGridStringTable {
public:
    /// rows counts the default row.
    explicit PageTable(int rows);

    /// Returns how the cell differs from its column.
    CellLook LookOf(int row, int col) const;

    /// Sets how the cell differs from its column. A value equal to the column's is no difference.
    void SetLook(int row, int col, CellLook look);

    void SetReadOnly(int row, int col, bool readOnly);
    void SetEditor(int row, int col, const wxGridCellEditorPtr& editor);
    void SetPaint(int row, int col, const wxColour& colour);

    /// Calls change(row, column, look) for each cell that differs from its column, then sets the changed
    /// look.
    template <class Change>
    void ChangeLooks(Change change) {
        for (int row = 0; row < static_cast<int>(m_cells.size()); ++row)
            for (const int col : OwnColumns(row)) {
                CellLook look = LookOf(row, col);
                change(row, col, look);
                SetLook(row, col, look);
            }
    }

    /// Resets the cells of a row to the editors of their columns. Paint and read-only marks stay.
    void ForgetEditors(int row);

    /// ForgetEditors for all rows; also drops the editors of SharedEditor. Call before setting up columns
    /// again.
    void ForgetEditors();

    /// Returns an editor shared by all cells that need the same one, by a key that the caller chooses. The
    /// first call with a key calls make(), which returns a new editor and passes on its ownership.
    template <class Make>
    wxGridCellEditorPtr SharedEditor(int key, Make make) {
        wxGridCellEditorPtr& editor = m_editors[key];
        if (!editor)
            editor.reset(make());
        return editor;
    }

    /// Moves the looks of row `from` to row `to`, whose former looks are lost. Row `from` keeps none.
    void MoveLooks(int from, int to);

    /// Drops all differences of the cells of the row.
    void ForgetLooks(int row);

    // Called by the grid.
    bool CanHaveAttributes() override { return true; }
    wxGridCellAttr* GetAttr(int row, int col, wxGridCellAttr::wxAttrKind kind) override;
    void SetAttr(wxGridCellAttr* attr, int row, int col) override;
    void SetColAttr(wxGridCellAttr* attr, int col) override;
    bool InsertRows(size_t row, size_t count) override;
    bool AppendRows(size_t count) override;
    bool DeleteRows(size_t row, size_t count) override;

private:
    struct OwnCell {
        int col;
        wxGridCellAttrPtr attr;
    };
    using OwnCells = std::vector<OwnCell>;

    bool ColumnIsReadOnly(int col) const;
    const wxGridCellAttr* Own(int row, int col) const;
    std::vector<int> OwnColumns(int row) const;
    void Store(int row, int col, const wxGridCellAttrPtr& attr);
    void DropOwn(int row, int col);
    void StoreShared(int row, int col, const CellLook& look);
    bool IsShared(const wxGridCellAttr* attr) const;
    void ForgetCached(int row);

    NumberedArray<wxGridCellAttrPtr, ColumnTotal> m_columns;
    std::vector<OwnCells> m_cells; ///< by row
    std::vector<std::pair<CellLook, wxGridCellAttrPtr>> m_shared;
    std::map<int, wxGridCellEditorPtr> m_editors;
};

/// The table of a page's grid.
PageTable& TableOf(const wxGrid* grid);

/// Makes a cell of a page's grid read-only or writable.
void LockCell(wxGrid* grid, int row, int col, bool readOnly = true);

/// Sets the background of a cell of a page's grid.
void PaintCell(wxGrid* grid, int row, int col, const wxColour& colour);
