#include "bench/ToolkitFloor.h"

#include "catalogue/PageModel.h"

#include <wx/grid.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include <array>

using namespace RadioCatalogue;

namespace {

CellObjects::Editor KindOf(wxGridCellEditor* editor) {
    if (dynamic_cast<wxGridCellChoiceEditor*>(editor))
        return CellObjects::Editor::Choice;
    if (dynamic_cast<wxGridCellNumberEditor*>(editor))
        return CellObjects::Editor::Number;
    return CellObjects::Editor::Text;
}

CellObjects ObjectsOf(wxGrid* grid, int row, int col) {
    CellObjects objects{row, col};
    if (const wxGridCellAttrPtr own = grid->GetTable()->GetAttrPtr(row, col, wxGridCellAttr::Cell)) {
        if (own->HasEditor())
            objects.editor = KindOf(own->GetEditorPtr(grid, row, col).get());
        objects.renderer = own->HasRenderer();
        objects.alignment = own->HasAlignment();
    }
    return objects;
}

/// As many choices as the column's list has.
wxArrayString ChoicesOf(int type, int col) {
    if (col == RTON || col == TTON)
        return IsP25Type(type) ? ListOf(CtcssTexts) : ListOf(ToneTexts);
    if (col == RCOD || col == TCOD)
        return ListOf(CodeTexts);
    return col == ZONE ? ListOf(ZoneNames32) : ListOf(P25Modes);
}

} // namespace

GridContent ContentOfCurrentPage() {
    wxGrid* grid = CurrentGrid();
    GridContent content;
    content.type = CurrentParameters().Type;
    content.rows = grid->GetNumberRows();
    content.radioName = PageStrings[CurrentPage].RadioName;
    for (int row = 0; row < content.rows; ++row) {
        content.texts.push_back(GetRowValues(CurrentPage, row));
        for (int col = 0; col < ColumnTotal; ++col) {
            if (grid->IsReadOnly(row, col))
                content.readOnly.push_back({row, col});
            const CellObjects objects = ObjectsOf(grid, row, col);
            if (objects.editor != CellObjects::Editor::None || objects.renderer || objects.alignment)
                content.objects.push_back(objects);
        }
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

void WriteObjects(wxGrid* grid, const GridContent& content) {
    std::array<wxArrayString, ColumnTotal> choices;
    for (const CellObjects& cell : content.objects) {
        switch (cell.editor) {
        case CellObjects::Editor::Choice:
            if (choices[cell.col].empty())
                choices[cell.col] = ChoicesOf(content.type, cell.col);
            grid->SetCellEditor(cell.row, cell.col, new wxGridCellChoiceEditor(choices[cell.col]));
            break;
        case CellObjects::Editor::Number:
            grid->SetCellEditor(cell.row, cell.col, new wxGridCellNumberEditor(0, 1000));
            break;
        case CellObjects::Editor::Text:
            grid->SetCellEditor(cell.row, cell.col, new wxGridCellTextEditor(8));
            break;
        case CellObjects::Editor::None:
            break;
        }
        if (cell.renderer)
            grid->SetCellRenderer(cell.row, cell.col, new wxGridCellStringRenderer);
        if (cell.alignment)
            grid->SetCellAlignment(cell.row, cell.col, wxALIGN_CENTRE, wxALIGN_CENTRE);
    }
    for (const auto& [row, col] : content.readOnly)
        grid->SetReadOnly(row, col, true);
}

void WriteTexts(wxGrid* grid, const GridContent& content) {
    wxGridUpdateLocker quiet(grid);
    for (int row = 0; row < content.rows; ++row)
        for (int col = 0; col < ColumnTotal; ++col)
            if (!content.texts[row][col].empty())
                grid->SetCellValue(row, col, content.texts[row][col]);
}

void WriteContent(wxGrid* grid, const GridContent& content) {
    wxGridUpdateLocker quiet(grid);
    WriteTexts(grid, content);
    WriteObjects(grid, content);
}

wxGrid* AddBarePage(wxNotebook* notebook, const GridContent& content) {
    auto* panel =
        new wxPanel(notebook, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_NONE);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    wxGrid* grid = MakeBareGrid(panel, content);
    sizer->Add(grid, 1, wxEXPAND | wxALL, 5);
    panel->SetSizer(sizer);
    notebook->AddPage(panel, content.radioName, true);
    WriteContent(grid, content);
    return grid;
}
