#include "simulator/BaudClock.h"

#include <algorithm>
#include <cstdint>

namespace Simulator {

namespace {

/// A serial chip hands over what has come in a millisecond, and at least a few bytes.
constexpr std::chrono::milliseconds WakeUpInterval{1};
constexpr int64_t BytesAWakeUp = 4;

std::chrono::nanoseconds ByteTime(int baud) {
    return std::chrono::nanoseconds(10'000'000'000LL / baud + 1);
}

} // namespace

size_t BaudClock::Take(TimePoint now, int baud, size_t waiting) {
    if (baud <= 0)
        return waiting;
    if (m_idle) {
        m_idle = false;
        m_free = now;
    }
    const auto through =
        static_cast<size_t>(std::max(now - m_free, Clock::duration::zero()) / ByteTime(baud));
    const size_t taken = std::min(through, waiting);
    m_free += static_cast<int64_t>(taken) * ByteTime(baud);
    return taken;
}

TimePoint BaudClock::NextDue(int baud, size_t waiting) const {
    if (baud <= 0)
        return m_free;
    const int64_t group = std::max<int64_t>(BytesAWakeUp, WakeUpInterval / ByteTime(baud));
    return m_free + std::min(static_cast<int64_t>(waiting), group) * ByteTime(baud);
}

} // namespace Simulator
