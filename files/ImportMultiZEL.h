// MultiZEL files: lists of the analog radios, one memory a line.
#pragma once

#include <wx/string.h>

class wxGrid;
class wxTextFile;

/// Puts the lines of an open file into the current page, each into the row of its number. Gives how
/// many lines there are, those without effect among them.
int ImportMultiZEL(const wxTextFile& file);

/// Puts a line into the current page's grid. A line without a number, or whose number is outside the
/// grid, writes nothing; one whose number is no number writes row 0.
void writeANFMToGrid(wxGrid* grid, const wxString& line);

/// The row that a line is for, -1 when it writes nothing. rows is the grid's row count.
int RowOfMultiZELLine(const wxString& line, int rows);

/// Answers of GetAlignment: one of the first three, and OtherFamily or not.
enum Alignment : int {
    BandSuits = 0,
    NeighbourBand = 1, ///< FM 136-174 and FM 138-174, which share their frequencies
    FrequenciesCannotStay = 2,
    OtherFamily = 128, ///< a source of another kind of radio than the page
};

/// How a source's band (id, or negative when it has none) and a page go together. sourceKind: 0 for a
/// MultiZEL file, 1 and 2 for those of the 716 family.
int AlignmentOf(int sourceKind, int sourceBand, int pageBand, int pageType);

/// AlignmentOf for the current page.
int GetAlignment(int sourceKind, int sourceBand);
