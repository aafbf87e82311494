// Labels of rows and columns on paper.
#pragma once

#include <wx/grid.h>

/// Draws labels in front of lines that don't depend on the theme. The toolkit's own have its colours: black
/// in a dark theme. The labels of rows are drawn once, for one sheet: use an object for each.
class PaperLabels : public wxGridCellAttrProvider {
public:
    const wxGridColumnHeaderRenderer& GetColumnHeaderRenderer(int) override { return m_column; }
    const wxGridRowHeaderRenderer& GetRowHeaderRenderer(int row) override;
    const wxGridCornerHeaderRenderer& GetCornerRenderer() override { return m_corner; }

private:
    class Column : public wxGridColumnHeaderRenderer {
        void DrawBorder(const wxGrid& grid, wxDC& dc, wxRect& rect) const override;
    };
    class Row : public wxGridRowHeaderRenderer {
        void DrawBorder(const wxGrid& grid, wxDC& dc, wxRect& rect) const override;
    };
    class Nothing : public wxGridRowHeaderRenderer {
        void DrawBorder(const wxGrid&, wxDC&, wxRect&) const override {}
        void DrawLabel(const wxGrid&, wxDC&, const wxString&, const wxRect&, int, int, int) const override {}
    };
    class Corner : public wxGridCornerHeaderRenderer {
        void DrawBorder(const wxGrid& grid, wxDC& dc, wxRect& rect) const override;
    };

    Column m_column;
    Row m_row;
    Nothing m_nothing;
    Corner m_corner;
    int m_lastRow = -1;
};
