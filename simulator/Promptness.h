// Wake-ups on time.
#pragma once

namespace Simulator {

/// Lets this thread run as soon as its wait ends, even if other programs keep all processors busy. A radio
/// has a processor of its own.
void WakeUpOnTime();

} // namespace Simulator
