// Sleep that ends on time.
#pragma once

#include <chrono>

/// Sleeps until `end`, exact to 0.2 ms unless other work keeps the processor. Returns at once if it has
/// passed. One source file for each operating system.
void SleepPrecisely(std::chrono::steady_clock::time_point end);
