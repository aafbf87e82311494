// Work of the toolkit alone for the same cells.
#pragma once

#include "catalogue/MemoryRow.h"

#include <wx/arrstr.h>

#include <vector>

class wxGrid;
class wxNotebook;
class wxWindow;

/// Content of a page's grid: its texts, and its type, which determines the editors of its columns.
struct GridContent {
    int type = 0;
    int rows = 0; ///< grid rows, including the default row
    std::vector<wxArrayString> texts;
    wxString radioName;
};

/// Returns the content of the current page.
GridContent ContentOfCurrentPage();

/// Makes a bare grid of the same size, columns and labels.
wxGrid* MakeBareGrid(wxWindow* parent, const GridContent& content);

/// Sets editor, renderer and alignment of each column that a page of the type edits. Uses the toolkit's own
/// plain classes, as a toolkit user would.
void SetBareColumns(wxGrid* grid, int type);

/// Writes the cells that have text.
void WriteTexts(wxGrid* grid, const GridContent& content);

/// Adds panel, grid, columns, texts and tab. Returns the grid.
wxGrid* AddBarePage(wxNotebook* notebook, const GridContent& content);
