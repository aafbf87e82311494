#include "simulator/Promptness.h"

#include <windows.h>

namespace Simulator {

void WakeUpOnTime() {
    // By default the system looks at waits every 15 ms, the time of 180 bytes at 115200 baud.
    timeBeginPeriod(1);
    SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_HIGHEST);
}

} // namespace Simulator
