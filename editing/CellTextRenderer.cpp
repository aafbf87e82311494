#include "editing/CellTextRenderer.h"

#include <wx/dc.h>

void CellTextRenderer::Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& rect, int row,
                            int col, bool isSelected) {
    wxGridCellRenderer::Draw(grid, attr, dc, rect, row, col, isSelected);
    SetTextColoursAndFont(grid, attr, dc, isSelected);
    int horizontal, vertical;
    attr.GetAlignment(&horizontal, &vertical);
    grid.DrawTextRectangle(dc, TextOf(grid, row, col), rect, attr, horizontal, vertical);
}

wxSize CellTextRenderer::GetBestSize(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, int row, int col) {
    dc.SetFont(attr.GetFont());
    return dc.GetTextExtent(TextOf(grid, row, col));
}
