// The cells of memory numbers and unit ids.
#pragma once

#include "editing/CellTextRenderer.h"

#include <wx/grid.h>

/// Edits MNUM. A number outside the range, or one that another row of the current page has, is refused with
/// a box; on a P25 page the shadows of a renumbered primary follow.
class ZelkMemoryNumberEditor : public wxGridCellNumberEditor {
public:
    /// The range of numbers, both ends included.
    ZelkMemoryNumberEditor(int min, int max) : wxGridCellNumberEditor(min, max), m_min(min), m_max(max) {}

    void Create(wxWindow* parent, wxWindowID id, wxEvtHandler* handler) override;
    /// Answers false, with nothing changed, for a number outside the range, and tells so.
    bool EndEdit(int row, int col, const wxGrid* grid, const wxString& oldval, wxString* newval) override;
    void ApplyEdit(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new ZelkMemoryNumberEditor(*this); }

    int GetMin() const { return m_min; }
    int GetMax() const { return m_max; }

private:
    int m_min, m_max;
};

/// How MNUM is shown: text is the cell's, row where it stands. Empty for an empty text; "DEF" for
/// number 0 in row 0, empty for it elsewhere; "GD1" and "GD2" for the numbers of the current page's
/// guard rows, in whatever row they stand; else at least three digits.
wxString MemoryNumberText(const wxString& text, int row);

/// How TIDC is shown: at least seven digits, or empty for an empty text.
wxString IdcNumberText(const wxString& text);

/// Shows MNUM by MemoryNumberText.
class MemoryNumberRenderer : public CellTextRenderer {
public:
    /// Whether the page's row count ends in another digit than 0; nothing depends on it.
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
