// What the toolkit alone needs for the same cells.
#pragma once

#include "catalogue/MemoryRow.h"

#include <wx/arrstr.h>

#include <vector>

class wxGrid;
class wxNotebook;
class wxWindow;

/// What one cell has of its own besides text and mark.
struct CellObjects {
    enum class Editor { None, Text, Number, Choice };
    int row, col;
    Editor editor = Editor::None;
    bool renderer = false, alignment = false;
};

/// What a page's grid holds: its texts, its read-only marks and its cells' objects.
struct GridContent {
    int type = 0;
    int rows = 0; ///< grid rows, the default row counted
    std::vector<wxArrayString> texts;
    std::vector<std::pair<int, int>> readOnly; ///< row and column
    std::vector<CellObjects> objects;
    wxString radioName;
};

/// The content of the current page.
GridContent ContentOfCurrentPage();

/// A grid of the same size, columns and labels, made bare.
wxGrid* MakeBareGrid(wxWindow* parent, const GridContent& content);

/// The cells that have text.
void WriteTexts(wxGrid* grid, const GridContent& content);

/// The editors, renderers and alignments of the content, with the toolkit's own plain classes, and the
/// marks.
void WriteObjects(wxGrid* grid, const GridContent& content);

/// WriteTexts and WriteObjects, as a toolkit user would.
void WriteContent(wxGrid* grid, const GridContent& content);

/// Panel, grid, content and tab. The grid.
wxGrid* AddBarePage(wxNotebook* notebook, const GridContent& content);
