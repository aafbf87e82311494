// Row checks: they repair a value that can't stand rather than refuse it.
#pragma once

#include <wx/string.h>

class wxGrid;

/// Gives a P25 row of the current page its zone slot and writes ZONE and TFLG. text is the zone
/// wished for; a zone that is unknown or has less room than the first free one gives that one. A
/// row that holds a slot (ZoneTakenFlag) stays as it is, a shadow row gets an empty ZONE and no
/// slot. On other pages ZONE becomes empty.
void CheckZone(wxGrid* grid, int row, wxString text);

/// Writes BAND on an MDLX page of the current page's grid: a band that the module has, else the
/// default row's in FailColour. On other pages BAND becomes empty.
void CheckBand(wxGrid* grid, int row, wxString text);
