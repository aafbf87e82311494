#include "transfer/PreciseSleep.h"

#include <windows.h>

namespace {

/// A sleep ends this much early, and the rest is spent on the clock: the system's timers tick twice a
/// millisecond at best.
constexpr std::chrono::microseconds WakeUp{600};

/// CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which headers for older systems lack.
constexpr DWORD HighResolution = 2;

/// A timer that ticks as fast as the system allows. Closed at the end of the program.
class Timer {
public:
    Timer() : m_handle(CreateWaitableTimerExW(nullptr, nullptr, HighResolution, TIMER_ALL_ACCESS)) {
        // Systems before Windows 10 of 2018 don't know the flag.
        if (!m_handle)
            m_handle = CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
    }
    ~Timer() {
        if (m_handle)
            CloseHandle(m_handle);
    }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    void Sleep(std::chrono::nanoseconds time) const {
        LARGE_INTEGER due;
        due.QuadPart = -time.count() / 100; // relative, in units of 100 ns
        if (m_handle && SetWaitableTimer(m_handle, &due, 0, nullptr, nullptr, FALSE))
            WaitForSingleObject(m_handle, INFINITE);
    }

private:
    HANDLE m_handle;
};

} // namespace

void SleepPrecisely(std::chrono::steady_clock::time_point end) {
    using std::chrono::steady_clock, std::chrono::milliseconds;
    static const Timer timer;
    // Some systems round a timer up to whole milliseconds. The longer rest on the clock would be wasted on
    // others.
    static bool ticksInMilliseconds = false;
    steady_clock::duration left = end - WakeUp - steady_clock::now();
    if (ticksInMilliseconds)
        left = std::chrono::floor<milliseconds>(left);
    if (left.count() > 0) {
        timer.Sleep(left);
        ticksInMilliseconds = ticksInMilliseconds || steady_clock::now() > end;
    }
    while (std::chrono::steady_clock::now() < end) {
    }
}
