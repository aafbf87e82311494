#include "robot/Pump.h"

#include "robot/PumpLoop.h"

#include <chrono>

namespace testbench {

namespace {
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;
} // namespace

bool PumpUntil(const std::function<bool()>& condition, int ms) {
    PumpLoop loop;
    const auto deadline = Clock::now() + Milliseconds(ms);
    while (!condition()) {
        if (Clock::now() >= deadline) {
            return false;
        }
        loop.DispatchOne(10);
    }
    return true;
}

void PumpFor(int ms) {
    PumpUntil([] { return false; }, ms);
}

void PumpUntilIdle() {
    // Shorter than an animation's frame time: a theme may show an animation all the time.
    constexpr int quietRounds = 3, roundMs = 3;
    PumpLoop loop;
    const auto deadline = Clock::now() + Milliseconds(500);
    // Count rounds, don't measure time: on a busy machine time passes without any look at the events.
    for (int quiet = 0; quiet < quietRounds && Clock::now() < deadline;) {
        const bool nothing = !loop.DispatchOne(roundMs) && !loop.IsPending();
        quiet = nothing ? quiet + 1 : 0;
    }
}

} // namespace testbench
