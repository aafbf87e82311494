#include "files/ZelkPrinting.h"

#include "catalogue/GridColours.h"
#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"
#include "files/PaperLabels.h"
#include "files/PrintLayout.h"

#include <wx/dc.h>
#include <wx/grid.h>

#include <algorithm>

std::unique_ptr<wxPrintData> PrintData;
std::unique_ptr<wxPageSetupDialogData> PageSetupData;

namespace {

const wxColour PaleGrey(245, 245, 245);
const wxColour DarkGrey(48, 48, 48);

wxFont PrintFont() {
    return wxFont(10, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL);
}

/// Keeps the grid's window enabled while it exists. A preview disables it, and the toolkit would
/// then draw pale labels on paper too. No event is handled meanwhile.
class EnabledWindow {
public:
    explicit EnabledWindow(wxWindow* child) : m_window(wxGetTopLevelParent(child)) {
        m_wasEnabled = m_window->IsThisEnabled();
        m_window->Enable();
    }
    ~EnabledWindow() { m_window->Enable(m_wasEnabled); }
    EnabledWindow(const EnabledWindow&) = delete;
    EnabledWindow& operator=(const EnabledWindow&) = delete;

private:
    wxWindow* m_window;
    bool m_wasEnabled;
};

/// Sets the grid's colours and fonts to those for paper while it exists, invisibly on the screen.
class PrintLook {
public:
    explicit PrintLook(wxGrid* grid)
        : m_enabled(grid), m_quiet(grid), m_grid(grid), m_lineColour(grid->GetGridLineColour()),
          m_labelBackground(grid->GetLabelBackgroundColour()), m_labelText(grid->GetLabelTextColour()),
          m_labelFont(grid->GetLabelFont()), m_cellBackground(grid->GetDefaultCellBackgroundColour()),
          m_cellText(grid->GetDefaultCellTextColour()), m_cellFont(grid->GetDefaultCellFont()),
          m_fitMode(grid->GetDefaultCellFitMode()) {
        grid->SetGridLineColour(PaleGrey);
        grid->SetLabelBackgroundColour(PaleGrey);
        grid->SetLabelTextColour(DarkGrey);
        grid->SetLabelFont(PrintFont());
        grid->SetDefaultCellBackgroundColour(*wxWHITE);
        grid->SetDefaultCellTextColour(DarkGrey);
        grid->SetDefaultCellFont(PrintFont());
        grid->GetTable()->SetAttrProvider(new PaperLabels); // the table owns it
        ForgetCachedColours(grid);
    }
    ~PrintLook() {
        m_grid->SetGridLineColour(m_lineColour);
        m_grid->SetLabelBackgroundColour(m_labelBackground);
        m_grid->SetLabelTextColour(m_labelText);
        m_grid->SetLabelFont(m_labelFont);
        m_grid->SetDefaultCellBackgroundColour(m_cellBackground);
        m_grid->SetDefaultCellTextColour(m_cellText);
        m_grid->SetDefaultCellFont(m_cellFont);
        m_grid->GetTable()->SetAttrProvider(nullptr);
        ForgetCachedColours(m_grid);
        m_grid->SetDefaultCellFitMode(m_fitMode);
    }
    PrintLook(const PrintLook&) = delete;
    PrintLook& operator=(const PrintLook&) = delete;

private:
    const EnabledWindow m_enabled;
    const wxGridUpdateLocker m_quiet;
    wxGrid* m_grid;
    const wxColour m_lineColour, m_labelBackground, m_labelText;
    const wxFont m_labelFont;
    const wxColour m_cellBackground, m_cellText;
    const wxFont m_cellFont;
    const wxGridFitMode m_fitMode;
};

PageMargins MarginsInMillimetres() {
    return {PageSetupData->GetMarginTopLeft(), PageSetupData->GetMarginBottomRight()};
}

/// Converts a point of the device to coordinates of the scale.
wxPoint Unscaled(int x, int y, double scale) {
    return {static_cast<int>(x / scale), static_cast<int>(y / scale)};
}

} // namespace

void InitPrinting() {
    PrintData = std::make_unique<wxPrintData>();
    PrintData->SetOrientation(wxPORTRAIT);
    PageSetupData = std::make_unique<wxPageSetupDialogData>(*PrintData);
    // The size that sheets are counted for.
    PageSetupData->GetPrintData().SetPaperId(wxPAPER_A4);
    PageSetupData->SetMarginTopLeft(wxPoint(15, 15));
    PageSetupData->SetMarginBottomRight(wxPoint(15, 15));
}

ZelkPrintout::ZelkPrintout(ZelkFrame* frame, wxGrid* grid, const wxString& title)
    : wxPrintout(title), m_frame(frame), m_grid(grid) {}

bool ZelkPrintout::OnBeginDocument(int start, int end) {
    return wxPrintout::OnBeginDocument(start, end);
}

bool ZelkPrintout::HasPage(int page) {
    return page >= 1 && page <= m_pageCount;
}

bool ZelkPrintout::OnPrintPage(int page) {
    if (!GetDC())
        return false;
    DrawPage(page);
    return true;
}

void ZelkPrintout::GetPageInfo(int* min, int* max, int* from, int* to) {
    CalculateRowsPerPage();
    // Intentional: all grid rows count, including the default row and blank rows.
    m_pageCount = CountPages(m_grid->GetNumberRows(), m_rowsPerPage);
    *min = *from = 1;
    *max = *to = m_pageCount;
}

void ZelkPrintout::CalculateRowsPerPage() {
    const wxGridSizesInfo columns = m_grid->GetColSizes(); // 0 for a hidden column
    int totalWidth = 0;
    for (unsigned col = 0; col < ColumnTotal; ++col)
        totalWidth += columns.GetSize(col);
    std::vector<int> rowHeights;
    rowHeights.reserve(static_cast<size_t>(m_grid->GetNumberRows()));
    for (int row = 0; row < m_grid->GetNumberRows(); ++row)
        rowHeights.push_back(m_grid->GetRowSize(row));
    const bool landscape = PrintData->GetOrientation() == wxLANDSCAPE;
    m_rowsPerPage = CountRowsPerPage(PageSetupData->GetPaperSize(), MarginsInMillimetres(), landscape,
                                     totalWidth, rowHeights);
}

void ZelkPrintout::GetPageMargins(double scale, wxPoint& topLeft, wxPoint& bottomRight, int extraTop) const {
    wxSize pixelsPerInch;
    if (IsPreview())
        GetPPIScreen(&pixelsPerInch.x, &pixelsPerInch.y);
    else
        GetPPIPrinter(&pixelsPerInch.x, &pixelsPerInch.y);
    const PageMargins margins =
        InDevicePixels(MarginsInMillimetres(), extraTop, pixelsPerInch, IsPreview() ? scale : 1);
    topLeft = margins.topLeft;
    bottomRight = margins.bottomRight;
}

void ZelkPrintout::DrawPage(int page) {
    const PrintLook look(m_grid);
    wxDC& dc = *GetDC();
    int screenPixels, printerPixels, unused, pageWidth;
    GetPPIScreen(&screenPixels, &unused);
    GetPPIPrinter(&printerPixels, &unused);
    GetPageSizePixels(&pageWidth, &unused);
    const double ratio = static_cast<double>(printerPixels) / screenPixels;
    const double scale = dc.GetSize().x * ratio / pageWidth;
    dc.SetUserScale(scale, scale);
    DrawGrid(dc, scale, page);
    DrawHeading(dc, scale, page);
}

void ZelkPrintout::DrawGrid(wxDC& dc, double scale, int page) const {
    wxPoint topLeft, bottomRight;
    GetPageMargins(scale, topLeft, bottomRight, HeadingSpace);
    const wxSize size(dc.GetSize().x - topLeft.x - bottomRight.x, dc.GetSize().y - topLeft.y - bottomRight.y);
    // Margins as wide as the paper leave no room to draw.
    if (size.x < 1 || size.y < 1)
        return;
    // On so few pixels an ellipsis has no width, and the toolkit can't shorten a text.
    if (size.x < 100)
        m_grid->SetDefaultCellFitMode(wxGridFitMode::Clip());
    const int first = (page - 1) * m_rowsPerPage;
    const int last = std::min(first + m_rowsPerPage, m_grid->GetNumberRows()) - 1;
    m_grid->Render(dc, Unscaled(topLeft.x, topLeft.y, scale), size, wxGridCellCoords(first, 0),
                   wxGridCellCoords(last, ColumnTotal - 1), wxGRID_DRAW_DEFAULT);
}

void ZelkPrintout::DrawHeading(wxDC& dc, double scale, int page) const {
    // Intentional: the heading of the first of three sheets says 2 of 3.
    const wxString pageText = wxString::Format("Page %d of %d", page + 1, m_pageCount);
    wxPoint topLeft, bottomRight;
    GetPageMargins(scale, topLeft, bottomRight, 0);
    const wxPoint left = Unscaled(topLeft.x, topLeft.y, scale);
    const wxPoint right = Unscaled(dc.GetSize().x - bottomRight.x, topLeft.y, scale);
    dc.SetFont(PrintFont());
    dc.SetTextForeground(DarkGrey);
    dc.DrawText(GetTitle(), left);
    const wxSize text = dc.GetTextExtent(pageText);
    dc.DrawText(pageText, right.x - text.x, right.y);
    dc.SetPen(*wxBLACK_PEN);
    dc.DrawLine(left.x, left.y + text.y, right.x, right.y + text.y);
}
