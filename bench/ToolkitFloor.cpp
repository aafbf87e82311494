#include "bench/ToolkitFloor.h"

#include "catalogue/PageModel.h"

#include <wx/grid.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include <array>

using namespace RadioCatalogue;

namespace {

/// Columns of a page type, by kind.
struct BareColumns {
    std::vector<int> numbers, choices, texts, rendered, centred;
};

BareColumns ColumnsOf(int type) {
    if (IsP25Type(type))
        return {.numbers = {MNUM, RNSV, TIDC},
                .choices = {SCAN, ZONE, MODE, RSQL, TSQL, RTON, TTON, RCOD, TCOD},
                .texts = {SHAD, DESC, RFRQ, TFRQ, RTGP, TTGP, RNAC, TNAC},
                .rendered = {MNUM, TIDC},
                .centred = {SHAD, SCAN, ZONE, MODE, RFRQ, RSQL, RNSV, RTON, RCOD, RTGP, RNAC, TFRQ, TSQL,
                            TTON, TCOD, TTGP, TNAC}};
    BareColumns columns{.numbers = {MNUM},
                        .choices = {MODE, RTON, TTON, RCOD, TCOD},
                        .texts = {DESC, RFRQ, TFRQ},
                        .rendered = {MNUM, SCAN},
                        .centred = {MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD}};
    if (type == MDLX)
        columns.choices.push_back(BAND);
    if (type == KDAR)
        columns.choices.insert(columns.choices.end(), {SCAN, RONL});
    return columns;
}

/// Returns as many choices as the column's list has.
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
    for (int row = 0; row < content.rows; ++row)
        content.texts.push_back(GetRowValues(CurrentPage, row));
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

void SetBareColumns(wxGrid* grid, int type) {
    std::array<wxGridCellAttrPtr, ColumnTotal> attrs;
    const auto attrOf = [&attrs](int col) {
        wxGridCellAttrPtr& attr = attrs[static_cast<size_t>(col)];
        if (!attr)
            attr.reset(new wxGridCellAttr);
        return attr.get();
    };
    const BareColumns columns = ColumnsOf(type);
    for (int col : columns.numbers)
        attrOf(col)->SetEditor(new wxGridCellNumberEditor(0, 1000));
    for (int col : columns.choices)
        attrOf(col)->SetEditor(new wxGridCellChoiceEditor(ChoicesOf(type, col)));
    for (int col : columns.texts)
        attrOf(col)->SetEditor(new wxGridCellTextEditor(8));
    for (int col : columns.rendered)
        attrOf(col)->SetRenderer(new wxGridCellStringRenderer);
    for (int col : columns.centred)
        attrOf(col)->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetColAttr(col, attrs[static_cast<size_t>(col)].release());
}

void WriteTexts(wxGrid* grid, const GridContent& content) {
    wxGridUpdateLocker quiet(grid);
    int row = 0;
    for (const wxArrayString& texts : content.texts) {
        int col = 0;
        for (const wxString& text : texts) {
            if (!text.empty())
                grid->SetCellValue(row, col, text);
            ++col;
        }
        ++row;
    }
}

wxGrid* AddBarePage(wxNotebook* notebook, const GridContent& content) {
    auto* panel =
        new wxPanel(notebook, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_NONE);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    wxGrid* grid = MakeBareGrid(panel, content);
    sizer->Add(grid, 1, wxEXPAND | wxALL, 5);
    panel->SetSizer(sizer);
    notebook->AddPage(panel, content.radioName, true);
    SetBareColumns(grid, content.type);
    WriteTexts(grid, content);
    return grid;
}
