// Imports MultiZEL files: lists of the analog radios, one memory per line.
#pragma once

#include <wx/string.h>

class wxGrid;
class wxTextFile;

/// Reads the lines of an open file into the current page, each into the row of its number. Returns
/// the number of lines, including those without effect.
int ImportMultiZEL(const wxTextFile& file);

/// Writes a line to the current page's grid. A line with no number, or with one outside the grid,
/// writes nothing; one with text that is not a number writes row 0.
void writeANFMToGrid(wxGrid* grid, const wxString& line);

/// Returns the row for a line, -1 if the line writes nothing. rows is the grid's row count.
int RowOfMultiZELLine(const wxString& line, int rows);

/// Results of GetAlignment: one of the first three, optionally with OtherFamily.
enum Alignment : int {
    BandSuits = 0,
    NeighbourBand = 1, ///< FM 136-174 and FM 138-174, which share their frequencies
    FrequenciesCannotStay = 2,
    OtherFamily = 128, ///< the source is from another kind of radio than the page
};

/// Returns how well a source's band (id, negative if it has none) suits a page. sourceKind: 0 for a
/// MultiZEL file, 1 and 2 for files of the 716 family.
int AlignmentOf(int sourceKind, int sourceBand, int pageBand, int pageType);

/// AlignmentOf for the current page.
int GetAlignment(int sourceKind, int sourceBand);
