// Counts the bytes that a serial line has had time to carry.
#pragma once

#include <chrono>
#include <cstddef>

namespace Simulator {

using Clock = std::chrono::steady_clock;
using TimePoint = Clock::time_point;

/// One direction of a line: 10 bits per byte (start, 8 data, stop). A speed of 0 means no limit.
class BaudClock {
public:
    /// Marks the line as idle: the next byte begins at the next Take.
    void Rest() { m_idle = true; }

    /// Returns how many of `waiting` bytes have been carried by `now` at `baud`, and counts them as sent.
    size_t Take(TimePoint now, int baud, size_t waiting);

    /// Returns when to call Take again for `waiting` more bytes. Groups a few bytes to save wake-ups.
    TimePoint NextDue(int baud, size_t waiting) const;

private:
    TimePoint m_free{}; // when the last byte ended
    bool m_idle = true;
};

} // namespace Simulator
