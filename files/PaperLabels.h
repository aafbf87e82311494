// Labels of rows and columns on paper.
#pragma once

#include <wx/grid.h>

/// Draws labels in front of lines that don't depend on the theme. The toolkit's own have its colours: black
/// in a dark theme.
class PaperLabels : public wxGridCellAttrProvider {
public:
    const wxGridColumnHeaderRenderer& GetColumnHeaderRenderer(int) override { return m_column; }
    const wxGridRowHeaderRenderer& GetRowHeaderRenderer(int) override { return m_row; }
    const wxGridCornerHeaderRenderer& GetCornerRenderer() override { return m_corner; }

private:
    class Column : public wxGridColumnHeaderRenderer {
        void DrawBorder(const wxGrid& grid, wxDC& dc, wxRect& rect) const override;
    };
    class Row : public wxGridRowHeaderRenderer {
        void DrawBorder(const wxGrid& grid, wxDC& dc, wxRect& rect) const override;
    };
    class Corner : public wxGridCornerHeaderRenderer {
        void DrawBorder(const wxGrid& grid, wxDC& dc, wxRect& rect) const override;
    };

    Column m_column;
    Row m_row;
    Corner m_corner;
};
