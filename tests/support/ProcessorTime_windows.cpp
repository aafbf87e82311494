#include "tests/support/ProcessorTime.h"

#include <windows.h>

namespace {

double Seconds(const FILETIME& time) {
    return (time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime) * 1e-7;
}

} // namespace

// std::clock counts the time of the wall there.
double ProcessorSeconds() {
    FILETIME start{}, end{}, system{}, user{};
    GetProcessTimes(GetCurrentProcess(), &start, &end, &system, &user);
    return Seconds(system) + Seconds(user);
}
