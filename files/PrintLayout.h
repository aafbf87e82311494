// The arithmetic of printed sheets: millimetres, grid pixels, device pixels.
#pragma once

#include <wx/gdicmn.h>

#include <vector>

/// Space for the heading above the grid, in millimetres.
constexpr int HeadingSpace = 6;

/// The four margins of a sheet, in millimetres or in device pixels.
struct PageMargins {
    wxPoint topLeft, bottomRight;
};

/// How many rows of a grid go onto a sheet when the grid fills the paper's width: 1 or more.
/// paper is the sheet's size in millimetres, upright; a size below 1 is unknown and taken as A4.
/// margins are in millimetres. In landscape the sheet lies on its side. totalWidth is the width of
/// all columns, rowHeights are those of the rows from row 0 on; both in grid pixels.
int CountRowsPerPage(wxSize paper, const PageMargins& margins, bool landscape, int totalWidth,
                     const std::vector<int>& rowHeights);

/// How many sheets hold that many rows. rowsPerPage is 1 or more.
int CountPages(int rows, int rowsPerPage);

/// The margins (in millimetres) in device pixels, cut to whole ones. extraTop, in millimetres, is
/// added to the top margin; a device pixel is a scale-th of one of pixelsPerInch.
PageMargins InDevicePixels(const PageMargins& margins, int extraTop, wxSize pixelsPerInch, double scale);
