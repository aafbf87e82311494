#include "files/PaperLabels.h"

#include <wx/dc.h>
#include <wx/pen.h>

#include <algorithm>

namespace {

const wxColour Shadow(205, 199, 194), Highlight(241, 240, 238);

/// Draws the lines below and to the right of a label.
void DrawFarEdges(wxDC& dc, const wxRect& rect) {
    dc.SetPen(wxPen(Shadow));
    dc.DrawLine(rect.GetRight(), rect.GetTop(), rect.GetRight(), rect.GetBottom());
    dc.DrawLine(rect.GetLeft(), rect.GetBottom(), rect.GetRight() + 1, rect.GetBottom());
}

/// Draws the light lines at the left and at the top of a label, moved into it by left and top pixels, and
/// leaves the rest of the rectangle for its text.
void DrawHighlights(wxDC& dc, wxRect& rect, int left, int top) {
    dc.SetPen(wxPen(Highlight));
    dc.DrawLine(rect.GetLeft() + left, rect.GetTop() + top, rect.GetLeft() + left, rect.GetBottom());
    dc.DrawLine(rect.GetLeft() + left, rect.GetTop() + top, rect.GetRight(), rect.GetTop() + top);
    rect.Deflate(1 + std::max(left, top));
}

} // namespace

const wxGridRowHeaderRenderer& PaperLabels::GetRowHeaderRenderer(int row) {
    // The toolkit draws the labels of all rows again for every column. Drawn over each other, the smooth
    // edges of their texts would become black.
    if (row <= m_lastRow)
        return m_nothing;
    m_lastRow = row;
    return m_row;
}

void PaperLabels::Column::DrawBorder(const wxGrid&, wxDC& dc, wxRect& rect) const {
    DrawFarEdges(dc, rect);
    dc.DrawLine(rect.GetLeft(), rect.GetTop(), rect.GetRight(), rect.GetTop());
    DrawHighlights(dc, rect, 0, 1);
}

void PaperLabels::Row::DrawBorder(const wxGrid&, wxDC& dc, wxRect& rect) const {
    DrawFarEdges(dc, rect);
    dc.DrawLine(rect.GetLeft(), rect.GetTop(), rect.GetLeft(), rect.GetBottom());
    DrawHighlights(dc, rect, 1, 0);
}

void PaperLabels::Corner::DrawBorder(const wxGrid&, wxDC& dc, wxRect& rect) const {
    // The labels beside the corner cover its last pixels.
    const int right = rect.GetRight() - 1, bottom = rect.GetBottom() - 1;
    dc.SetPen(wxPen(Shadow));
    dc.DrawLine(right, bottom, right, rect.GetTop());
    dc.DrawLine(right, bottom, rect.GetLeft(), bottom);
    dc.DrawLine(rect.GetLeft(), rect.GetTop(), right + 1, rect.GetTop());
    dc.DrawLine(rect.GetLeft(), rect.GetTop(), rect.GetLeft(), bottom + 1);
    dc.SetPen(wxPen(Highlight));
    dc.DrawLine(rect.GetLeft() + 1, rect.GetTop() + 1, right, rect.GetTop() + 1);
    dc.DrawLine(rect.GetLeft() + 1, rect.GetTop() + 1, rect.GetLeft() + 1, bottom);
    rect.Deflate(2);
}
