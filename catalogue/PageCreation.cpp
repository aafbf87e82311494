#include "catalogue/PageCreation.h"

#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/ZelkEdit.h"
#include "editing/ZelkEditors.h"
#include "frame/ZelkGUI.h"

#include <wx/grid.h>
#include <wx/log.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include <algorithm>

using namespace RadioCatalogue;

void SetPageParameters(OrvZELFrame* frame, int page, int radio, int bandIndex) {
    PageParameterRecord& parameters = PageParameters[page];
    parameters.Radio = radio;
    parameters.BandIndex = bandIndex;
    parameters.Band = RadioBands[radio][bandIndex];
    parameters.Rows = RadioRows[radio][bandIndex];
    parameters.Type = GetRadioType(radio, parameters.Band);
    parameters.Cols = ColumnCount[parameters.Type];

    PageStrings[page] = {"", "", RadioName[radio], BandName[parameters.Band], RadioTypeName[parameters.Type]};
    OpModes[page] = NarrowMode | DigitalMode;
    // Meant: these are the flags of the page that is selected now, also while another is made.
    CurrentParameters().Flags = 0;
    if (IsP25Type(parameters.Type))
        ClearZoneSlots(page);
    SetGuardRows(frame, page, parameters.Rows);
}

void SetGridColumns(wxGrid* grid, int type) {
    for (int col = 0; col < ColumnTotal; ++col) {
        // The minimal width goes first: a column never becomes narrower than its minimum. The
        // same width as a minimum keeps a hidden column from being dragged open.
        grid->SetColMinimalWidth(col, ColumnWidth[type][col]);
        grid->SetColSize(col, ColumnWidth[type][col]);
        grid->SetColLabelValue(col, ColumnHeading[type][col]);
    }
    // The toolkit begins in the first column, which is always hidden, and a page of another type
    // may have left the cursor in one that is hidden now: typing would go into a cell unseen.
    if (const int col = grid->GetGridCursorCol(); col < 0 || !grid->IsColShown(col))
        grid->SetGridCursor(std::max(grid->GetGridCursorRow(), 0), MNUM);
}

void SetGridRowLabels(wxGrid* grid, int last) {
    for (int row = 0; row <= last; ++row)
        grid->SetRowLabelValue(row, NumberText(row));
}

namespace {

void SetUpGrid(OrvZELFrame* frame, wxGrid* grid, int page) {
    const int rows = PageParameters[page].Rows;
    grid->SetTable(new PageTable(rows + 1), true);
    grid->EnableEditing(true);
    grid->EnableGridLines(true);
    grid->EnableDragGridSize(false);
    grid->SetMargins(0, 0);
    grid->EnableDragColMove(false);
    grid->EnableDragColSize(true);
    grid->SetColLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    SetGridColumns(grid, PageParameters[page].Type);

    grid->SetDefaultRowSize(23, true);
    grid->EnableDragRowSize(false);
    // Scrolling by whole rows keeps the first row whole, on which the row menu counts.
    grid->SetScrollLineY(grid->GetDefaultRowSize());
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    grid->SetRowLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    // Meant: one label more than there are rows.
    SetGridRowLabels(grid, rows + 1);
    grid->SetRowLabelSize(wxGRID_AUTOSIZE);
    grid->SetColLabelSize(grid->GetRowSize(1));
    grid->SetDefaultCellAlignment(wxALIGN_LEFT, wxALIGN_TOP);
    // A page is often selected as a whole while it is read: dark text on a light colour, also
    // where the window has no focus and the toolkit takes a grey.
    grid->SetSelectionForeground(*wxBLACK);
    grid->SetSelectionBackground(wxColour(178, 208, 240));
    // The event names the grid's inner window that was clicked, so no id can be asked for here.
    grid->Bind(wxEVT_CONTEXT_MENU, &OrvZELFrame::OnGridContextMenu, frame);
}

} // namespace

void CreateNewPage(OrvZELFrame* frame, int page) {
    auto* panel = new wxPanel(frame->m_notebook, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                              wxTAB_TRAVERSAL | wxBORDER_NONE);
    frame->m_pagePanels[page] = frame->m_lastPanel = panel;
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    auto* grid = new wxGrid(panel, wxID_ANY);
    PageGrid[page] = grid;
    SetUpGrid(frame, grid, page);
    sizer->Add(grid, 1, wxEXPAND | wxALL, 5);
    panel->SetSizer(sizer);
    // For every page but the first this raises the page-changed event before it returns, so
    // that the new page is the current one from here on.
    frame->m_notebook->AddPage(panel, PageStrings[page].RadioName, true);
    {
        wxGridUpdateLocker quiet(grid);
        SetPageEditors(page);
        SetPageDefaults(frame, page);
    }
    grid->Bind(wxEVT_GRID_CELL_CHANGING, &OrvZELFrame::OnGridCellChanging, frame);
    CurrentPage = page;
    ++PageCount;
    ShowPageParameters(frame, page);
}

void ShowPageParameters(OrvZELFrame*, int page) {
    const PageParameterRecord& parameters = PageParameters[page];
    wxLogMessage(" . Page: %d; Radio: %d; Band: %d, slot %d; Rows: %d; Cols: %d; Type: %d; Flags: %02X",
                 page + 1, parameters.Radio, parameters.Band, parameters.BandIndex, parameters.Rows,
                 parameters.Cols, parameters.Type, static_cast<unsigned>(parameters.Flags));
}

namespace {

/// Fills the rows that a P25 page begins with, as far as they are blank: after a change of target they can
/// hold memories.
void FillStartingRows() {
    CurrentGrid()->ClearSelection();
    for (int row : {1, GD1, GD2})
        if (row >= 1 && !RowHasData(row))
            FillRowsFromDefault({row});
}

} // namespace

void SetPageDefaults(OrvZELFrame*, int page) {
    const PageParameterRecord& parameters = PageParameters[page];
    wxGrid* grid = PageGrid[page];
    int defaultRow = parameters.Band;
    if (parameters.Radio == Kdrv716B)
        defaultRow = Kdrv716BDefaultRow;
    else if (parameters.Radio == Kdar2000)
        defaultRow = Kdar2000DefaultRow;
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(0, col, PageDefault[defaultRow][col]);

    if (IsP25Type(parameters.Type)) {
        FillStartingRows();
        ZoneList = ZoneNames(CurrentParameters().Type);
    }
    LockCell(grid, 0, MNUM);
    grid->ForceRefresh();
}

bool NumberedDescription(const wxString& text, int width, wxString& base) {
    size_t length = text.length();
    while (length > 0 && text[length - 1] >= '0' && text[length - 1] <= '9')
        --length;
    if (length == text.length())
        return false;
    base = text.Left(std::min<size_t>(length, static_cast<size_t>(width - 3)));
    return true;
}

namespace {

/// A row image on its way into rows of a page.
class RowImage {
public:
    RowImage(int page, const wxArrayString& values, bool allColumns)
        : m_grid(PageGrid[page]), m_values(values), m_limit(allColumns ? TFLG : SHD6),
          m_p25(IsP25Type(PageParameters[page].Type)),
          m_numbered(NumberedDescription(values[DESC], m_p25 ? 8 : 9, m_baseText)) {}

    void WriteInto(int row, bool renumber) const {
        for (int col = 0; col <= m_limit; ++col) {
            m_grid->SetCellValue(row, col, m_values[col]);
            TakePaintOff(m_grid, row, col);
        }
        if (m_numbered)
            m_grid->SetCellValue(row, DESC, m_baseText + NumberText(row));
        if (renumber) {
            m_grid->SetCellValue(row, MNUM, NumberText(row));
            if (m_p25)
                m_grid->SetCellValue(row, PRIM, NumberText(row));
        }
        if (m_p25)
            CheckZone(m_grid, row, wxString());
    }

private:
    wxGrid* m_grid;
    const wxArrayString& m_values;
    int m_limit;
    bool m_p25;
    wxString m_baseText;
    bool m_numbered;
};

} // namespace

void CopyValuesToRow(int page, const wxArrayString& values, int row) {
    RowImage(page, values, true).WriteInto(row, true);
}

void FillRowsFromDefault(std::initializer_list<int> rows) {
    wxGrid* grid = CurrentGrid();
    const wxGridUpdateLocker quiet(grid);
    grid->ClearSelection();
    const wxArrayString values = GetRowValues(CurrentPage, 0);
    const RowImage image(CurrentPage, values, true);
    for (int row : rows)
        if (row >= 1 && row <= CurrentParameters().Rows)
            image.WriteInto(row, true);
}

void CopyValuesToSelection(int page, const wxArrayString& values, bool renumber, bool allColumns) {
    wxGrid* grid = PageGrid[page];
    const RowImage image(page, values, allColumns);
    const wxGridUpdateLocker quiet(grid);
    for (int row = 1; row <= PageParameters[page].Rows; ++row)
        if (grid->IsInSelection(row, 0))
            image.WriteInto(row, renumber);
    grid->ClearSelection();
}
