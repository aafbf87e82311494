// A page's grid on paper.
#pragma once

#include <wx/cmndata.h>
#include <wx/print.h>

#include <cstdint>
#include <memory>

class wxGrid;
class ZelkFrame;

/// What the user chose for printing, from start-up to the program's end.
extern std::unique_ptr<wxPrintData> PrintData;
/// The paper and its margins (in millimetres), likewise.
extern std::unique_ptr<wxPageSetupDialogData> PageSetupData;

/// Makes both settings: portrait, with margins of 15 mm.
void InitPrinting();

/// Prints a grid as it stands, under a heading, on as many sheets as it needs. Columns without width
/// take no room.
class ZelkPrintout : public wxPrintout {
public:
    /// The grid must outlive the printout. title stands at the left of the heading.
    ZelkPrintout(ZelkFrame* frame, wxGrid* grid, const wxString& title);

    /// False when the device can't begin a document.
    bool OnBeginDocument(int start, int end) override;
    /// True for the sheets of the document (1-based), once GetPageInfo has counted them.
    bool HasPage(int page) override;
    /// Draws a sheet (1-based). False without a device.
    bool OnPrintPage(int page) override;
    /// Counts the sheets: all of them are offered and chosen.
    void GetPageInfo(int* min, int* max, int* from, int* to) override;

    /// Sets how many grid rows each sheet takes, from the paper, its margins and the grid's sizes.
    void CalculateRowsPerPage();
    /// The margins in device pixels. scale is that of a preview; extraTop, in millimetres, is added to
    /// the top margin.
    void GetPageMargins(double scale, wxPoint& topLeft, wxPoint& bottomRight, int extraTop) const;
    /// Draws a sheet (1-based) on the device. The grid looks as before when it's done.
    void DrawPage(int page);

    /// Both 0 until they have been reckoned.
    int32_t RowsPerPage() const { return m_rowsPerPage; }
    int32_t DocumentPages() const { return m_pageCount; }

private:
    void DrawGrid(wxDC& dc, double scale, int page) const;
    void DrawHeading(wxDC& dc, double scale, int page) const;

    [[maybe_unused]] ZelkFrame* m_frame;
    wxGrid* m_grid;
    int32_t m_pageCount = 0;
    int32_t m_rowsPerPage = 0;
};
