// Prints a page's grid.
#pragma once

#include <wx/cmndata.h>
#include <wx/print.h>

#include <cstdint>
#include <memory>

class wxGrid;
class ZelkFrame;

/// Print settings that the user chose, kept from start-up to exit.
extern std::unique_ptr<wxPrintData> PrintData;
/// Paper and its margins (in millimetres), kept likewise.
extern std::unique_ptr<wxPageSetupDialogData> PageSetupData;

/// Creates both settings: portrait, with margins of 15 mm.
void InitPrinting();

/// Prints a grid as it is, under a heading, on as many sheets as needed. Columns of width 0 take
/// no room.
class ZelkPrintout : public wxPrintout {
public:
    /// The grid must outlive the printout. title is at the left of the heading.
    ZelkPrintout(ZelkFrame* frame, wxGrid* grid, const wxString& title);

    /// Returns false if the device can't begin a document.
    bool OnBeginDocument(int start, int end) override;
    /// True for the sheets of the document (1-based), once GetPageInfo has counted them.
    bool HasPage(int page) override;
    /// Draws a sheet (1-based). Returns false without a device.
    bool OnPrintPage(int page) override;
    /// Counts the sheets; all of them are offered and selected.
    void GetPageInfo(int* min, int* max, int* from, int* to) override;

    /// Sets the number of grid rows per sheet from the paper, its margins and the grid's sizes.
    void CalculateRowsPerPage();
    /// Computes the margins in device pixels. scale is that of a preview; extraTop, in millimetres, is
    /// added to the top margin.
    void GetPageMargins(double scale, wxPoint& topLeft, wxPoint& bottomRight, int extraTop) const;
    /// Draws a sheet (1-based) on the device, then restores the grid's look.
    void DrawPage(int page);

    /// Both are 0 until calculated.
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
