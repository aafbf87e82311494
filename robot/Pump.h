// Dispatches events in the window thread while it waits for something.
#pragma once

#include <functional>

namespace testbench {

/// Dispatches events and idle work, as the program's main loop does, until the condition holds (returns
/// true) or `ms` milliseconds have passed (returns false). Checks the condition in the window thread.
bool PumpUntil(const std::function<bool()>& condition, int ms = 5000);

/// Dispatches events for `ms` milliseconds.
void PumpFor(int ms);

/// Dispatches events until none has arrived for 9 ms, for half a second at most.
void PumpUntilIdle();

} // namespace testbench
