// Base of renderers that show a cell in a form other than its text.
#pragma once

#include <wx/grid.h>

/// Draws one line of text derived from the cell, in the cell's colours, font and alignment.
class CellTextRenderer : public wxGridCellRenderer {
public:
    void Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect, int row, int col,
              bool isSelected) override;
    wxSize GetBestSize(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, int row, int col) override;

    /// Returns the text to show in the cell.
    virtual wxString TextOf(const wxGrid& grid, int row, int col) const = 0;

protected:
    /// Draws the text on the cell's background. Font and text colour are set.
    virtual void DrawContent(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect,
                             const wxString& text) const;
};
