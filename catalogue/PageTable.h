// The table behind a page's grid: its texts, and what its cells are edited and shown with.
#pragma once

#include "catalogue/MemoryRow.h"

#include <wx/grid.h>

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

/// How a cell differs from its column.
struct CellLook {
    std::optional<bool> readOnly; ///< without value as the column says
    wxColour paint;               ///< background; not valid for that of the grid
    wxGridCellEditorPtr editor;   ///< null for that of the column

    bool IsPlain() const { return !readOnly && !paint.IsOk() && !editor; }
    bool operator==(const CellLook& other) const {
        return readOnly == other.readOnly && paint == other.paint && editor.get() == other.editor.get();
    }
};

/// Texts, and attributes by column. A cell has an attribute of its own only where it differs from its column,
/// and cells that differ alike share it. Rows have no attributes.
class PageTable : public wxGridStringTable {
public:
    /// rows counts the default row.
    explicit PageTable(int rows);

    /// How the cell differs.
    CellLook LookOf(int row, int col) const;

    /// Lets the cell differ so. What the column has anyway is no difference.
    void SetLook(int row, int col, CellLook look);

    void SetReadOnly(int row, int col, bool readOnly);
    void SetEditor(int row, int col, const wxGridCellEditorPtr& editor);
    void SetPaint(int row, int col, const wxColour& colour);

    /// Calls change(row, column, look) for each cell that differs, which then differs as look says.
    template <class Change>
    void ChangeLooks(Change change) {
        for (int row = 0; row < static_cast<int>(m_cells.size()); ++row)
            for (const int col : OwnColumns(row)) {
                CellLook look = LookOf(row, col);
                change(row, col, look);
                SetLook(row, col, look);
            }
    }

    /// Makes the cells of a row differ in nothing but paint and read-only mark.
    void ForgetEditors(int row);

    /// ForgetEditors for all rows, with the editors of SharedEditor: columns are about to be set up anew.
    void ForgetEditors();

    /// An editor for all cells that need the same one, by a key of the caller's. make() is called for the
    /// first of them and gives the ownership of a new editor.
    template <class Make>
    wxGridCellEditorPtr SharedEditor(int key, Make make) {
        wxGridCellEditorPtr& editor = m_editors[key];
        if (!editor)
            editor.reset(make());
        return editor;
    }

    /// The cells of row to, whose former looks are lost, differ as those of row from did; these don't any
    /// more.
    void MoveLooks(int from, int to);

    /// The cells of the row differ in nothing.
    void ForgetLooks(int row);

    // What the grid calls.
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

    std::array<wxGridCellAttrPtr, ColumnTotal> m_columns;
    std::vector<OwnCells> m_cells; ///< by row
    std::vector<std::pair<CellLook, wxGridCellAttrPtr>> m_shared;
    std::map<int, wxGridCellEditorPtr> m_editors;
};

/// The table of a page's grid.
PageTable& TableOf(const wxGrid* grid);

/// Makes a cell of a page's grid read-only, or writable.
void LockCell(wxGrid* grid, int row, int col, bool readOnly = true);

/// Gives a cell of a page's grid a background.
void PaintCell(wxGrid* grid, int row, int col, const wxColour& colour);
