#include "tests/support/robot/Pump.h"

#include <chrono>

#include <wx/evtloop.h>

namespace testbench {

namespace {
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;
} // namespace

bool PumpUntil(const std::function<bool()>& condition, int ms) {
    wxGUIEventLoop loop;
    wxEventLoopActivator activate(&loop);
    const auto deadline = Clock::now() + Milliseconds(ms);
    while (!condition()) {
        if (Clock::now() >= deadline) {
            return false;
        }
        loop.DispatchTimeout(10);
    }
    return true;
}

void PumpFor(int ms) {
    PumpUntil([] { return false; }, ms);
}

void PumpUntilIdle() {
    constexpr int nothingCame = -1;
    wxGUIEventLoop loop;
    wxEventLoopActivator activate(&loop);
    const auto deadline = Clock::now() + Milliseconds(2000);
    auto lastEvent = Clock::now();
    while (Clock::now() - lastEvent < Milliseconds(20) && Clock::now() < deadline) {
        if (loop.DispatchTimeout(5) != nothingCame) {
            lastEvent = Clock::now();
        }
    }
}

} // namespace testbench
