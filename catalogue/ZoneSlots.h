// Counters of the memories in each P25 zone of each page.
#pragma once

#include "catalogue/NumberedArray.h"
#include "catalogue/PageModel.h"

#include <cstdint>

/// Number of zones that a page has counters for.
constexpr int ZonesPerPage = 32;
/// A zone holds at most this many memories.
constexpr int ZoneCapacity = 16;
/// Number of counters that ClearZoneSlots, FirstFreeZone and the deletion of a page cover: one more
/// than a page has.
/// Intentional: the range includes zone 0 of the next page; the table has room for it after the
/// last page.
constexpr int ZoneReach = ZonesPerPage + 1;

/// Slots taken, by page * 32 + zone (both 0-based).
extern NumberedArray<int32_t, PageLimit * ZonesPerPage + 1> ZoneSlots;

/// The counters of a page; ZoneReach of them can be used.
int32_t* ZoneSlotsOf(int page);

/// Takes a slot of the zone (0 to 32) on the current page. Returns false when the zone already
/// holds 16 or is outside that range.
bool TakeP25ZonePosition(int zone);

/// Releases a slot of the zone (0 to 32) on the current page. Returns false when none is taken or
/// the zone is outside that range.
bool ReleaseP25ZonePosition(int zone);

/// The first zone of the current page with room, 0 to 32, or -1.
int FirstFreeZone();

/// Sets the counters 0 to 32 of the page to 0, which includes zone 0 of the next page.
void ClearZoneSlots(int page);

/// The name of a zone (0-based) of the current page, or "None" past the ends of its list.
wxString GetZoneName(int zone);

/// Position of a name among the zones of the current page, -1 when absent.
int FindZone(const wxString& name);
