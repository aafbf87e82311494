// Checks of the columns. Each writes a value from outside into a cell of the current page.
#pragma once

#include <wx/string.h>

class MemoryNumberIndex;
class wxGrid;

// Every check takes the current page's grid, a row, the column if it serves two, and the text to write. It
// writes a valid text: the given one in the form of the page's radio type, the default row's text, or nothing
// if the type has no such column. "Painted" means that the cell of a rejected text is left in FailColour.

/// Verdict of a check on a text.
enum CheckResult : int {
    CheckGood = 0,
    CheckBadValue = -1,
    CheckNotApplicable = -2, ///< the page's radio type has no such column
};

/// Writes a memory number as "%03d"; leaves the cell empty when it is above the page's rows. A number that
/// another row holds shows the box of ResultNumberUsed, leaves the cell empty and returns CheckBadValue.
/// Never painted.
int CheckMNum(wxGrid* grid, int row, const wxString& text);

/// Same, but looks up the page's numbers in an index, and updates the index with the cell's new text.
int CheckMNum(wxGrid* grid, int row, const wxString& text, MemoryNumberIndex& numbers);

/// Sets PRIM, the primary's number, of a P25 row to the row's own MNUM, whatever the text.
void CheckPrim(wxGrid* grid, int row, const wxString& text);

/// Accepts "N" and texts that begin with "P-" or "S-"; any other becomes "N" and returns CheckBadValue. On
/// pages that aren't P25 the cell becomes empty and CheckNotApplicable is returned. Never painted.
int CheckShad(wxGrid* grid, int row, const wxString& text);

/// On an MDLX page, a band of the module leaves the cell as it is (a caller that wants another text there
/// writes it) and returns CheckGood. Any other text is replaced by the default row's, painted, and returns
/// CheckBadValue; the default row itself then keeps its former text. On other pages the cell becomes empty
/// and CheckNotApplicable is returned.
int CheckBand(wxGrid* grid, int row, const wxString& text);

/// Writes "Y" or "N" on P25 and KDAR pages. Others accept a mask from 0 to 31 in one or two digits, or four
/// or five marks of the legacy files, which become a mask; any other text is painted. A guard row gets the
/// default row's text, unpainted.
void CheckScan(wxGrid* grid, int row, const wxString& text);

/// Calls DealZone and notes a replaced zone. text is the name of the requested zone.
void CheckZone(wxGrid* grid, int row, const wxString& text);

/// Writes the description as DescriptionText returns it.
void CheckDesc(wxGrid* grid, int row, const wxString& text);

/// Writes the mode letter in the page's case; any other text is painted. On an MDLX page a row of band 6,
/// where no mode can be chosen, accepts "n/a".
void CheckMode(wxGrid* grid, int row, const wxString& text);

/// RFRQ or TFRQ: accepts a frequency within the page's band, on an MDLX page within the row's; any other text
/// is painted and returns CheckBadValue. The channel step isn't checked, and band 2 never refuses TFRQ.
int CheckFreq(wxGrid* grid, int row, int column, const wxString& text);

/// RSQL or TSQL: accepts a squelch letter of the row's MODE on P25 pages; any other is painted. Empty on
/// other pages.
void CheckSquelch(wxGrid* grid, int row, int column, const wxString& text);

/// Accepts a numeric squelch value from 0 to 15 on NP25 pages; any other is painted. Empty on other pages.
void CheckRnsv(wxGrid* grid, int row, const wxString& text);

/// RTON or TTON: accepts a tone of the page's list; any other is painted. squelch is the text of RSQL or
/// TSQL; if it is empty on a P25 page, that cell becomes "t".
void CheckTone(wxGrid* grid, int row, int column, const wxString& text, const wxString& squelch);

/// RCOD or TCOD: accepts a DPL code; any other is painted. squelch as in CheckTone; the cell becomes "c".
void CheckCode(wxGrid* grid, int row, int column, const wxString& text, const wxString& squelch);

/// RTGP or TTGP: four hexadecimal digits on P25 pages, empty on others. Never painted.
void CheckTalkGroup(wxGrid* grid, int row, int column, const wxString& text);

/// RNAC or TNAC: three hexadecimal digits on P25 pages, empty on others. Never painted.
void CheckNac(wxGrid* grid, int row, int column, const wxString& text);

/// Unit id from 0 to 9999999 on P25 pages, "0000001" for an empty text; empty on others. Never
/// painted.
void CheckTidc(wxGrid* grid, int row, const wxString& text);

/// Leaves the cell unchanged on KDAR pages, whatever the text; empty on others.
void CheckRonl(wxGrid* grid, int row, const wxString& text);
