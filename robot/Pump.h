// Keeping windows alive from the window thread while something is waited for.
#pragma once

#include <functional>

namespace testbench {

/// Dispatches events and idle work as the program's main loop does until the condition holds (true)
/// or `ms` milliseconds are over (false). The condition is asked in the window thread.
bool PumpUntil(const std::function<bool()>& condition, int ms = 5000);

/// Dispatches events for `ms` milliseconds.
void PumpFor(int ms);

/// Dispatches events until none came for 15 ms, half a second at most.
void PumpUntilIdle();

} // namespace testbench
