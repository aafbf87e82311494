// Pending output of a simulated radio, with its pauses, in order.
#pragma once

#include "simulator/BaudClock.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace Simulator {

/// A queue of bytes, pauses and events, played in real time.
class OutputQueue {
public:
    /// Output that has become due.
    struct Delivery {
        std::string bytes;
        std::vector<std::string> notes; ///< log lines of all that was sent completely
        bool vanish = false;            ///< the device must disappear now
    };

    /// Queues bytes. `note` is logged after they are sent; empty for none.
    void Say(std::string bytes, std::string note);
    /// Queues a pause. `note` is logged at its start; empty for none.
    void Pause(std::chrono::milliseconds duration, std::string note);
    /// Queues a wait until the key is pressed or `patience` has passed.
    void AwaitKey(std::chrono::milliseconds patience);
    /// Queues the disappearance of the device, which discards all that follows.
    void Vanish(std::string note);
    /// Counts a completed transfer after all that is queued before it.
    void Complete();
    /// Counts a completed transfer now.
    void CountCompleted() { ++m_completed; }

    /// Ends the wait for the key, if one is in progress.
    void PressKey();
    /// Discards everything that hasn't been sent.
    void Clear();

    bool IsEmpty() const { return m_actions.empty(); }
    int Completed() const { return m_completed; }

    /// Removes and returns what is due at `now` on a line of `baud` (0: no limit): one message at most.
    Delivery Take(TimePoint now, int baud);
    /// Returns when to call Take again; nothing if the queue is empty.
    std::optional<TimePoint> NextDue() const { return m_due; }

private:
    enum class Kind { Bytes, Pause, Key, Vanish, Complete };
    struct Action {
        Kind kind;
        std::string bytes;
        std::chrono::milliseconds duration;
        std::string note;
    };

    void Push(Action action);
    bool HoldIsOver(const Action& action, TimePoint now, Delivery& delivery);

    std::deque<Action> m_actions;
    size_t m_sent = 0; // bytes already sent of the first action
    std::optional<TimePoint> m_holdEnd;
    std::optional<TimePoint> m_due;
    BaudClock m_clock;
    int m_completed = 0;
};

} // namespace Simulator
