#include "transfer/PreciseSleep.h"

#include <sys/prctl.h>

#include <thread>

namespace {

/// A sleep ends this much early, and the rest is spent on the clock: waking up takes about that long.
constexpr std::chrono::microseconds WakeUp{50};

} // namespace

void SleepPrecisely(std::chrono::steady_clock::time_point end) {
    // By default the system groups wake-ups and may delay this one by 0.05 ms.
    const int slack = prctl(PR_GET_TIMERSLACK);
    prctl(PR_SET_TIMERSLACK, 1UL);
    std::this_thread::sleep_until(end - WakeUp);
    prctl(PR_SET_TIMERSLACK, static_cast<unsigned long>(slack));
    while (std::chrono::steady_clock::now() < end) {
    }
}
