// The event loop of PumpUntil.
#pragma once

#include <memory>

namespace testbench {

/// Dispatches events one by one during its lifetime, in the window thread.
class PumpLoop {
public:
    PumpLoop();
    ~PumpLoop();
    PumpLoop(const PumpLoop&) = delete;
    PumpLoop& operator=(const PumpLoop&) = delete;

    /// Does idle work if no event waits, and dispatches the next event. Returns false if none came within
    /// `ms` milliseconds.
    bool DispatchOne(int ms);

    /// True if an event waits.
    bool IsPending();

private:
    class Loop;
    std::unique_ptr<Loop> m_loop;
};

} // namespace testbench
