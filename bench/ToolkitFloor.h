// What the toolkit alone needs for the same cells.
#pragma once

#include "catalogue/MemoryRow.h"

#include <wx/arrstr.h>

#include <vector>

class wxGrid;
class wxNotebook;
class wxWindow;

/// What a page's grid holds: its type, which says what its columns are edited with, and its texts.
struct GridContent {
    int type = 0;
    int rows = 0; ///< grid rows, the default row counted
    std::vector<wxArrayString> texts;
    wxString radioName;
};

/// The content of the current page.
GridContent ContentOfCurrentPage();

/// A grid of the same size, columns and labels, made bare.
wxGrid* MakeBareGrid(wxWindow* parent, const GridContent& content);

/// Editor, renderer and alignment of each column that a page of the type edits, of the toolkit's own plain
/// classes, as a toolkit user would set them.
void SetBareColumns(wxGrid* grid, int type);

/// The cells that have text.
void WriteTexts(wxGrid* grid, const GridContent& content);

/// Panel, grid, columns, texts and tab. The grid.
wxGrid* AddBarePage(wxNotebook* notebook, const GridContent& content);
