// How many memories each P25 zone of each page holds.
#pragma once

#include "catalogue/PageModel.h"

#include <array>
#include <cstdint>

/// Zones a page has counters for.
constexpr int ZonesPerPage = 32;
/// A zone holds at most this many memories.
constexpr int ZoneCapacity = 16;
/// How far ClearZoneSlots, FirstFreeZone and a page's deletion reach: one counter more than a
/// page has. The reach into the next page's zone 0 is meant; the table has room for it behind
/// the last page.
constexpr int ZoneReach = ZonesPerPage + 1;

/// Slots taken, at page * 32 + zone (both 0-based).
extern std::array<int32_t, PageLimit * ZonesPerPage + 1> ZoneSlots;

/// The counters of a page, of which ZoneReach can be used.
int32_t* ZoneSlotsOf(int page);

/// Takes a slot of the zone (0 to 32) on the current page. False when the zone holds 16 already
/// or lies outside that range.
bool TakeP25ZonePosition(int zone);

/// Gives a slot of the zone back on the current page. False when none is taken or the zone lies
/// outside 0 to 32.
bool ReleaseP25ZonePosition(int zone);

/// The first zone of the current page with room, 0 to 32, or -1.
int FirstFreeZone();

/// Sets the counters 0 to 32 of the page to 0, and so zone 0 of the next page as well.
void ClearZoneSlots(int page);

/// The name of a zone (0-based) of the current page, or "None" past the ends of its list.
wxString GetZoneName(int zone);

/// Position of a name among the zones of the current page, -1 when its list lacks it.
int FindZone(const wxString& name);
