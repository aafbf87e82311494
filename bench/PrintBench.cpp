// Printing a full page.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/TakeFastest.h"
#include "bench/ToolkitFloor.h"
#include "catalogue/PageModel.h"
#include "files/ZelkPrinting.h"
#include "frame/ZelkMain.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/grid.h>
#include <wx/notebook.h>

#include <algorithm>

namespace {

/// The page with the most rows.
constexpr PageCase FullestPage = {"NP25", Kdrv716B, 0};

/// A4 at 150 pixels per inch.
constexpr int PixelsPerInch = 150;
const wxSize SheetSize(1240, 1754);
/// Area of the sheet inside the margins and below the heading.
const wxPoint GridPosition(88, 124);
const wxSize GridSize(1064, 1542);

class Sheet {
public:
    Sheet() : m_bitmap(SheetSize, 24), m_dc(m_bitmap) {
        m_dc.SetBackground(*wxWHITE_BRUSH);
        m_dc.Clear();
    }
    wxMemoryDC& Dc() { return m_dc; }

private:
    wxBitmap m_bitmap;
    wxMemoryDC m_dc;
};

/// Lays out the page and draws all its sheets. Returns the number of rows per sheet.
int PrintPage(wxMemoryDC& dc) {
    ZelkPrintout printout(MainFrame, CurrentGrid(), PageStrings[CurrentPage].RadioName);
    printout.SetPPIScreen(96, 96);
    printout.SetPPIPrinter(PixelsPerInch, PixelsPerInch);
    printout.SetPageSizePixels(SheetSize.x, SheetSize.y);
    printout.SetDC(&dc);
    int min, max, from, to;
    printout.GetPageInfo(&min, &max, &from, &to);
    printout.OnBeginDocument(from, to);
    for (int page = from; printout.HasPage(page); ++page)
        printout.OnPrintPage(page);
    printout.OnEndDocument();
    return printout.RowsPerPage();
}

void RunPrint(benchmark::State& state) {
    MakePage(FullestPage);
    FillPage();
    Sheet sheet;
    TakeFastest(
        state, [] {}, [&] { PrintPage(sheet.Dc()); });
    DropPage();
}

/// The toolkit alone: draws a plain grid of the same texts, in the same pieces.
void RunPrintBare(benchmark::State& state) {
    MakePage(FullestPage);
    FillPage();
    Sheet sheet;
    const int rowsPerPage = PrintPage(sheet.Dc());
    const GridContent content = ContentOfCurrentPage();
    DropPage();
    wxGrid* grid = AddBarePage(MainFrame->m_notebook, content);
    sheet.Dc().SetUserScale(1, 1);
    TakeFastest(
        state, [] {},
        [&] {
            const int rows = grid->GetNumberRows();
            for (int first = 0; first < rows; first += rowsPerPage)
                grid->Render(sheet.Dc(), GridPosition, GridSize, wxGridCellCoords(first, 0),
                             wxGridCellCoords(std::min(first + rowsPerPage, rows) - 1, ColumnTotal - 1),
                             wxGRID_DRAW_DEFAULT);
        });
    DropPage();
}

} // namespace

void RegisterPrint() {
    constexpr int Passes = 2;
    for (int pass = 0; pass < Passes; ++pass)
        for (const bool floor : {false, true})
            benchmark::RegisterBenchmark(floor ? "print/NP25/floor" : "print/NP25/program",
                                         floor ? RunPrintBare : RunPrint)
                ->Unit(benchmark::kMillisecond)
                ->Iterations(1)
                ->UseManualTime();
}
