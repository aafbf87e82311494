// Assignment of zones to the memories of a P25 page.
#pragma once

#include <wx/string.h>

class wxGrid;

/// Assigns a P25 row of the current page its zone slot and writes ZONE and TFLG. wish is the name of the
/// wanted zone; the first free zone replaces one that is unknown or is before it in the list. A row that
/// already holds a slot (ZoneTakenFlag) stays as it is; a shadow row gets an empty ZONE and no slot. The
/// default row gets the wish and no slot. On other pages ZONE becomes empty.
///
/// Returns whether an ordinary memory got a zone other than wish; false for an empty wish.
bool DealZone(wxGrid* grid, int row, const wxString& wish);
