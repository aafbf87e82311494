// SCAN cell of pages whose channels belong to five scan lists: five boxes.
#pragma once

#include "editing/CellTextRenderer.h"
#include "editing/WholeTextEditor.h"

#include <wx/grid.h>

/// Writes text into a scan cell. Sets the cell's editor and renderer and the grid's default font if its
/// column doesn't provide them.
void SetScanCell(wxGrid* grid, int row, int col, const wxString& text, bool flag);

/// Returns the scan lists of a row as a mask from 0 to 31; bit 0 is list 1. -1 if the row has no number; 0 if
/// the cell is not a number in that range.
int GetScanMask(const wxGrid* grid, int row, int col);

/// Returns five boxes, the first for bit 0, crossed where the bit is set. Empty for a negative mask.
wxString ScanMaskText(int mask);

/// Returns the mask (0 to 31) that a text means: five boxes as ScanMaskText writes them, the mask itself, or
/// five characters as in "1_3__". Nothing for any other text.
std::optional<int> ScanMaskOf(const wxString& text);

/// Toggles a box on a click on it or on the keys "1" to "5".
class ScanlistEditor : public wxGridCellActivatableEditor, public WholeTextEditor {
public:
    /// Nothing depends on flag.
    explicit ScanlistEditor(bool flag) : m_flag(flag) {}

    wxGridActivationResult TryActivate(int row, int col, wxGrid* grid,
                                       const wxGridActivationSource& source) override;
    void DoActivate(int row, int col, wxGrid* grid) override;
    std::optional<wxString> HoldText(int row, int col, wxGrid* grid, const wxString& text) override;
    void ApplyHeldText(int row, int col, wxGrid* grid) override { DoActivate(row, col, grid); }
    wxGridCellEditor* Clone() const override { return new ScanlistEditor(m_flag); }

private:
    bool m_flag;
    wxString m_value;
};

/// Shows the boxes. They are drawn, because fonts may lack them; only on paper are they characters, which a
/// reader can find and copy in a printed file.
class ScanlistRenderer : public CellTextRenderer {
public:
    wxString TextOf(const wxGrid& grid, int row, int col) const override;
    wxSize GetBestSize(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, int row, int col) override;
    wxGridCellRenderer* Clone() const override { return new ScanlistRenderer; }

protected:
    void DrawContent(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect,
                     const wxString& text) const override;
};
