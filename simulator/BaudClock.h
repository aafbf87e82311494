// How many bytes a serial line has had time for.
#pragma once

#include <chrono>
#include <cstddef>

namespace Simulator {

using Clock = std::chrono::steady_clock;
using TimePoint = Clock::time_point;

/// One direction of a line: 10 bits a byte (start, 8 data, stop). A speed of 0 is a line without limit.
class BaudClock {
public:
    /// The line is idle: the next byte begins when it is asked for.
    void Rest() { m_idle = true; }

    /// How many of `waiting` bytes are through by `now` at `baud`; they count as gone.
    std::size_t Take(TimePoint now, int baud, std::size_t waiting);

    /// When to ask again for `waiting` more bytes; a few are taken together to spare wake-ups.
    TimePoint NextDue(int baud, std::size_t waiting) const;

private:
    TimePoint m_free{}; // the last byte was through by then
    bool m_idle = true;
};

} // namespace Simulator
