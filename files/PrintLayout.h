// Arithmetic of printed sheets: millimetres, grid pixels, device pixels.
#pragma once

#include <wx/gdicmn.h>

#include <vector>

/// Space for the heading above the grid, in millimetres.
constexpr int HeadingSpace = 6;

/// The four margins of a sheet, in millimetres or in device pixels.
struct PageMargins {
    wxPoint topLeft, bottomRight;
};

/// Returns how many rows of a grid fit on a sheet if the grid fills the paper's width: 1 or more.
/// paper is the size of the upright sheet in millimetres; a size below 1 is unknown and taken as
/// A4. margins are in millimetres. In landscape the sheet is turned on its side. totalWidth is the
/// width of all columns, rowHeights are the heights of the rows from row 0 on; both in grid pixels.
int CountRowsPerPage(wxSize paper, const PageMargins& margins, bool landscape, int totalWidth,
                     const std::vector<int>& rowHeights);

/// Returns how many sheets hold that many rows. rowsPerPage is 1 or more.
int CountPages(int rows, int rowsPerPage);

/// Converts margins from millimetres to device pixels, truncated to whole ones. extraTop, in
/// millimetres, is added to the top margin. An inch has pixelsPerInch * scale device pixels.
PageMargins InDevicePixels(const PageMargins& margins, int extraTop, wxSize pixelsPerInch, double scale);
