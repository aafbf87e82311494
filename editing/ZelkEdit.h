// Row checks: they repair a value that can't stand rather than refuse it.
#pragma once

#include <wx/string.h>

class wxGrid;

/// Gives a P25 row of the current page its zone slot and writes ZONE and TFLG. text is the zone
/// wished for; a zone that is unknown or has less room than the first free one gives that one. A
/// row that holds a slot (ZoneTakenFlag) stays as it is, a shadow row gets an empty ZONE and no
/// slot. On other pages ZONE becomes empty.
void CheckZone(wxGrid* grid, int row, wxString text);

/// Checks text as the BAND of a row of the current page's grid. On an MDLX page a band that the
/// module has leaves the cell as it is (a caller that wants another text in it writes it); any
/// other text puts the default row's there, in FailColour. On other pages BAND becomes empty.
void CheckBand(wxGrid* grid, int row, const wxString& text);
