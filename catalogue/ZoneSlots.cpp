#include "catalogue/ZoneSlots.h"

#include <algorithm>

NumberedArray<int32_t, PageLimit * ZonesPerPage + 1> ZoneSlots{};

namespace {

/// The counter of a zone on the current page; null outside 0 to 32.
int32_t* CounterOf(int zone) {
    return zone >= 0 && zone < ZoneReach ? ZoneSlotsOf(CurrentPage) + zone : nullptr;
}

} // namespace

int32_t* ZoneSlotsOf(int page) {
    return ZoneSlots.data() + page * ZonesPerPage;
}

bool TakeP25ZonePosition(int zone) {
    int32_t* counter = CounterOf(zone);
    if (!counter || *counter >= ZoneCapacity)
        return false;
    ++*counter;
    return true;
}

bool ReleaseP25ZonePosition(int zone) {
    int32_t* counter = CounterOf(zone);
    if (!counter || *counter <= 0)
        return false;
    --*counter;
    return true;
}

int FirstFreeZone() {
    const int32_t* counters = ZoneSlotsOf(CurrentPage);
    const int32_t* end = counters + ZoneReach;
    const int32_t* found = std::find_if(counters, end, [](int32_t taken) { return taken < ZoneCapacity; });
    return found == end ? -1 : static_cast<int>(found - counters);
}

void ClearZoneSlots(int page) {
    std::fill_n(ZoneSlotsOf(page), ZoneReach, 0);
}

wxString GetZoneName(int zone) {
    const wxArrayString& names = RadioCatalogue::ZoneNames(CurrentParameters().Type);
    if (zone < 0 || zone >= static_cast<int>(names.size()))
        return "None";
    return names[static_cast<size_t>(zone)];
}

int FindZone(const wxString& name) {
    return RadioCatalogue::ZoneNames(CurrentParameters().Type).Index(name);
}
