// The wait of a port on Linux.
#pragma once

#include "simulator/Port.h"

namespace Simulator {

/// Waits until the device has what is wanted, until `watch` (-1: none) or `requests` has something to read,
/// or until `due`. A device of -1 isn't looked at.
void WaitForPort(int device, Port::Wanted wanted, int watch, std::optional<TimePoint> due,
                 const Requests& requests);

} // namespace Simulator
