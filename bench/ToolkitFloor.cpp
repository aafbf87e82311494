#include "bench/ToolkitFloor.h"

#include "catalogue/PageModel.h"

#include <wx/grid.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>

using namespace RadioCatalogue;

GridContent ContentOfCurrentPage() {
    wxGrid* grid = CurrentGrid();
    GridContent content;
    content.type = CurrentParameters().Type;
    content.rows = grid->GetNumberRows();
    content.radioName = PageStrings[CurrentPage].RadioName;
    for (int row = 0; row < content.rows; ++row) {
        content.texts.push_back(GetRowValues(CurrentPage, row));
        for (int col = 0; col < ColumnTotal; ++col)
            if (grid->IsReadOnly(row, col))
                content.readOnly.push_back({row, col});
    }
    return content;
}

wxGrid* MakeBareGrid(wxWindow* parent, const GridContent& content) {
    auto* grid = new wxGrid(parent, wxID_ANY);
    grid->CreateGrid(content.rows, ColumnTotal);
    grid->SetMargins(0, 0);
    for (int col = 0; col < ColumnTotal; ++col) {
        grid->SetColMinimalWidth(col, ColumnWidth[content.type][col]);
        grid->SetColSize(col, ColumnWidth[content.type][col]);
        grid->SetColLabelValue(col, ColumnHeading[content.type][col]);
    }
    grid->SetDefaultRowSize(23, true);
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    for (int row = 0; row < content.rows; ++row)
        grid->SetRowLabelValue(row, wxString::Format("%03d", row));
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    return grid;
}

void WriteContent(wxGrid* grid, const GridContent& content) {
    wxGridUpdateLocker quiet(grid);
    for (int row = 0; row < content.rows; ++row)
        for (int col = 0; col < ColumnTotal; ++col)
            if (!content.texts[row][col].empty())
                grid->SetCellValue(row, col, content.texts[row][col]);
    for (const auto& [row, col] : content.readOnly)
        grid->SetReadOnly(row, col, true);
}

void AddBarePage(wxNotebook* notebook, const GridContent& content) {
    auto* panel =
        new wxPanel(notebook, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_NONE);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    wxGrid* grid = MakeBareGrid(panel, content);
    sizer->Add(grid, 1, wxEXPAND | wxALL, 5);
    panel->SetSizer(sizer);
    notebook->AddPage(panel, content.radioName, true);
    WriteContent(grid, content);
}
