#include "editing/CellTextRenderer.h"

#include <wx/dc.h>

void CellTextRenderer::Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect, int row,
                            int col, bool isSelected) {
    wxGridCellRenderer::Draw(grid, attr, dc, rect, row, col, isSelected);
    SetTextColoursAndFont(grid, attr, dc, isSelected);
    DrawContent(grid, attr, dc, rect, TextOf(grid, row, col));
}

void CellTextRenderer::DrawContent(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect,
                                   const wxString& text) const {
    int horizontal, vertical;
    attr.GetAlignment(&horizontal, &vertical);
    grid.DrawTextRectangle(dc, text, rect, attr, horizontal, vertical);
}

wxSize CellTextRenderer::GetBestSize(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, int row, int col) {
    dc.SetFont(attr.GetFont());
    return dc.GetTextExtent(TextOf(grid, row, col));
}
