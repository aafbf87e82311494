// The check of each column: the way to put a foreign value into a cell of the current page.
#pragma once

#include <wx/string.h>

class MemoryNumberIndex;
class wxGrid;

// Every check takes the current page's grid, a row, the column where it serves two, and the text
// that is to come into the cell. It writes what can stand there: the text, put into the form of the
// page's radio type, or the default row's text, or nothing where the type has no such column. Where
// "painted" is said, a text that had to give way leaves its cell in FailColour.

/// What a check thinks of a text.
enum CheckResult : int {
    CheckGood = 0,
    CheckBadValue = -1,
    CheckNotApplicable = -2, ///< the page's radio type has no such column
};

/// Memory number as "%03d"; empty when it is above the page's rows. A number that another row holds
/// shows the box of ResultNumberUsed, leaves the cell empty and answers CheckBadValue. Never painted.
int CheckMNum(wxGrid* grid, int row, const wxString& text);

/// The same, with the page's numbers looked up in an index, which learns what the cell gets.
int CheckMNum(wxGrid* grid, int row, const wxString& text, MemoryNumberIndex& numbers);

/// The primary's number of a P25 row becomes the row's own MNUM; whatever the text.
void CheckPrim(wxGrid* grid, int row, const wxString& text);

/// "N", or a text that begins with "P-" or "S-"; any other becomes "N" and answers CheckBadValue.
/// Empty and CheckNotApplicable on pages that aren't P25. Never painted.
int CheckShad(wxGrid* grid, int row, const wxString& text);

/// On an MDLX page a band that the module has leaves the cell as it is (a caller that wants another
/// text in it writes it) and answers CheckGood; any other text puts the default row's there, painted, and
/// answers CheckBadValue. The default row itself keeps its former text then. On other pages empty and
/// CheckNotApplicable.
int CheckBand(wxGrid* grid, int row, const wxString& text);

/// "Y" or "N" on P25 and KDAR pages. On others a mask from 0 to 31 in one or two digits, or four or
/// five marks of the legacy files, which become a mask; any other is painted. A guard row gets the
/// default row's text, unpainted.
void CheckScan(wxGrid* grid, int row, const wxString& text);

/// DealZone, and notes a zone that had to give way. text is the name of the zone wished for.
void CheckZone(wxGrid* grid, int row, wxString text);

/// Description as DescriptionText gives it.
void CheckDesc(wxGrid* grid, int row, const wxString& text);

/// Mode letter in the page's case; any other text is painted. On an MDLX page "n/a" stands in a row of band
/// 6, where no mode can be chosen.
void CheckMode(wxGrid* grid, int row, const wxString& text);

/// RFRQ or TFRQ: a frequency within the page's band, on an MDLX page within the row's; any other
/// text is painted and answers CheckBadValue. The channel step is not looked at, and TFRQ is never
/// refused in band 2.
int CheckFreq(wxGrid* grid, int row, int column, const wxString& text);

/// RSQL or TSQL: a squelch letter of the row's MODE on P25 pages, any other is painted; empty on
/// other pages.
void CheckSquelch(wxGrid* grid, int row, int column, const wxString& text);

/// Numeric squelch value from 0 to 15 on NP25 pages, any other is painted; empty on other pages.
void CheckRnsv(wxGrid* grid, int row, const wxString& text);

/// RTON or TTON: a tone of the page's list, any other is painted. squelch is the text of RSQL or
/// TSQL; on a P25 page where it is empty, that cell becomes "t".
void CheckTone(wxGrid* grid, int row, int column, const wxString& text, const wxString& squelch);

/// RCOD or TCOD: a DPL code, any other is painted. squelch as in CheckTone; the cell becomes "c".
void CheckCode(wxGrid* grid, int row, int column, const wxString& text, const wxString& squelch);

/// RTGP or TTGP: four hexadecimal digits on P25 pages, empty on others. Never painted.
void CheckTalkGroup(wxGrid* grid, int row, int column, const wxString& text);

/// RNAC or TNAC: three hexadecimal digits on P25 pages, empty on others. Never painted.
void CheckNac(wxGrid* grid, int row, int column, const wxString& text);

/// Unit id from 0 to 9999999 on P25 pages, "0000001" for an empty text; empty on others. Never
/// painted.
void CheckTidc(wxGrid* grid, int row, const wxString& text);

/// KDAR pages keep the cell as it is, whatever the text; on others empty.
void CheckRonl(wxGrid* grid, int row, const wxString& text);
