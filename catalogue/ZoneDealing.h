// Which zone a memory of a P25 page gets.
#pragma once

#include <wx/string.h>

class wxGrid;

/// Gives a P25 row of the current page its zone slot and writes ZONE and TFLG. wish is the name of the zone
/// wished for; a zone that is unknown or has less room than the first free one gives that one. A
/// row that holds a slot (ZoneTakenFlag) stays as it is, a shadow row gets an empty ZONE and no
/// slot. The default row gets the wish and no slot. On other pages ZONE becomes empty.
///
/// Returns whether an ordinary memory got another zone than the one wished for; an empty wish is none.
bool DealZone(wxGrid* grid, int row, const wxString& wish);
