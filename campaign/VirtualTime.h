// Time that passes only when something waits for it.
#pragma once

#include "transfer/TransferClock.h"

#include <cstdint>
#include <functional>
#include <queue>
#include <vector>

namespace Campaign {

using Moment = TransferClock::Moment;

/// Events in the order of their time; events of the same moment in the order in which they were added.
class VirtualTime {
public:
    Moment Now() const { return m_now; }

    /// Milliseconds since the start.
    int64_t Milliseconds() const;

    /// Runs `what` at `when`, or at once if that has passed, at the next AdvanceTo or RunNext.
    void At(Moment when, std::function<void()> what);

    /// Moves to the next event and runs it, if it isn't after `limit`. Otherwise returns false.
    bool RunNext(Moment limit);

    /// Runs all events up to this moment, and moves to it.
    void AdvanceTo(Moment when);

private:
    struct Event {
        Moment when;
        uint64_t number;
        std::function<void()> what;
    };
    struct Later {
        bool operator()(const Event& one, const Event& other) const {
            return one.when != other.when ? one.when > other.when : one.number > other.number;
        }
    };

    Moment m_now{};
    uint64_t m_added = 0;
    std::priority_queue<Event, std::vector<Event>, Later> m_events;
};

} // namespace Campaign
