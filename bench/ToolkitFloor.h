// What the toolkit alone needs for the same cells.
#pragma once

#include "catalogue/MemoryRow.h"

#include <wx/arrstr.h>

#include <vector>

class wxGrid;
class wxNotebook;
class wxWindow;

/// What a page's grid holds: its texts and its read-only marks.
struct GridContent {
    int type = 0;
    int rows = 0; ///< grid rows, the default row counted
    std::vector<wxArrayString> texts;
    std::vector<std::pair<int, int>> readOnly; ///< row and column
    wxString radioName;
};

/// The content of the current page.
GridContent ContentOfCurrentPage();

/// A grid of the same size, columns and labels, made bare.
wxGrid* MakeBareGrid(wxWindow* parent, const GridContent& content);

/// The cells that have text, and the marks, written as a toolkit user would.
void WriteContent(wxGrid* grid, const GridContent& content);

/// Panel, grid, content and tab.
void AddBarePage(wxNotebook* notebook, const GridContent& content);
