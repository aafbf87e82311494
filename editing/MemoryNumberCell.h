// Cells of memory numbers and unit ids.
#pragma once

#include "editing/CellTextRenderer.h"
#include "editing/WholeTextEditor.h"

#include <wx/grid.h>

/// Edits MNUM. Refuses with a box a number outside the range, or one that another row of the current page
/// has. On a P25 page the shadows of a renumbered primary are updated.
class ZelkMemoryNumberEditor : public wxGridCellNumberEditor, public WholeTextEditor {
public:
    /// min and max are both part of the range.
    ZelkMemoryNumberEditor(int min, int max) : wxGridCellNumberEditor(min, max), m_min(min), m_max(max) {}

    void Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) override;
    /// Returns false, changes nothing and shows a box for a number outside the range.
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;
    void ApplyEdit(int row, int col, wxGrid* grid) override;
    /// Shows no box for a number that is refused.
    std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) override;
    void ApplyHeldText(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new ZelkMemoryNumberEditor(*this); }

    int GetMin() const { return m_min; }
    int GetMax() const { return m_max; }

private:
    int m_min, m_max;
    int m_held = 0;
};

/// Returns the text shown for MNUM; text is the cell's text, row its row. Empty for an empty text; "DEF" for
/// number 0 in row 0, empty for 0 elsewhere; "GD1" and "GD2" for the numbers of the current page's guard
/// rows, in any row; otherwise at least three digits.
wxString MemoryNumberText(const wxString& text, int row);

/// Returns the text shown for TIDC: at least seven digits, or empty for an empty text.
wxString IdcNumberText(const wxString& text);

/// Shows MNUM by MemoryNumberText.
class MemoryNumberRenderer : public CellTextRenderer {
public:
    /// unevenRows: the page's row count ends in a digit other than 0. Nothing depends on it.
    explicit MemoryNumberRenderer(bool unevenRows) : m_unevenRows(unevenRows) {}

    wxString TextOf(const wxGrid& grid, int row, int col) const override;
    wxGridCellRenderer* Clone() const override { return new MemoryNumberRenderer(m_unevenRows); }

private:
    bool m_unevenRows;
};

/// Shows TIDC by IdcNumberText.
class IDCNumberRenderer : public CellTextRenderer {
public:
    wxString TextOf(const wxGrid& grid, int row, int col) const override;
    wxGridCellRenderer* Clone() const override { return new IDCNumberRenderer; }
};
