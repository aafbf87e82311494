// Wake-ups on time. One source file for each operating system.
#pragma once

namespace Simulator {

/// Lets this thread run as soon as its wait ends, even if other programs keep all processors busy. A radio
/// has a processor of its own.
void WakeUpOnTime();

} // namespace Simulator
