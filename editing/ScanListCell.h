// The SCAN cell of pages whose channels belong to five scan lists: five boxes.
#pragma once

#include "editing/CellTextRenderer.h"

#include <wx/grid.h>

/// Puts text into a scan cell. A cell that hasn't got them by its column gets its editor, renderer and the
/// grid's default font.
void SetScanCell(wxGrid* grid, int row, int col, const wxString& text, bool flag);

/// The scan lists of a row, bit 0 being list 1: 0 to 31. -1 when the row has no number; 0 when the
/// cell is no number of that range.
int GetScanMask(const wxGrid* grid, int row, int col);

/// Five boxes, the first for bit 0, crossed where the bit is set. Empty for a negative mask.
wxString ScanMaskText(int mask);

/// Turns a box over by a click on it or by the keys "1" to "5".
class ScanlistEditor : public wxGridCellActivatableEditor {
public:
    /// Nothing depends on flag.
    explicit ScanlistEditor(bool flag) : m_flag(flag) {}

    wxGridActivationResult TryActivate(int row, int col, wxGrid* grid,
                                       const wxGridActivationSource& source) override;
    void DoActivate(int row, int col, wxGrid* grid) override;
    wxGridCellEditor* Clone() const override { return new ScanlistEditor(m_flag); }

private:
    bool m_flag;
    wxString m_value;
};

/// Shows the boxes.
class ScanlistRenderer : public CellTextRenderer {
public:
    wxString TextOf(const wxGrid& grid, int row, int col) const override;
    wxGridCellRenderer* Clone() const override { return new ScanlistRenderer; }
};
