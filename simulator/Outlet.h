// What is still to go out of a simulated radio, with its pauses, in order.
#pragma once

#include "simulator/BaudClock.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace Simulator {

/// A queue of bytes, pauses and events that is played against the clock.
class Outlet {
public:
    /// What has become due.
    struct Delivery {
        std::string bytes;
        std::vector<std::string> notes; ///< log lines of what has gone out in full
        bool vanish = false;            ///< the device is to disappear now
    };

    /// Bytes; `note` is for the log once they are out, empty for none.
    void Say(std::string bytes, std::string note);
    /// Nothing goes out for that long; `note` as above, at its start.
    void Pause(std::chrono::milliseconds duration, std::string note);
    /// Nothing goes out until the key is pressed or `patience` is over.
    void AwaitKey(std::chrono::milliseconds patience);
    /// The device disappears; nothing comes after it.
    void Vanish(std::string note);
    /// Counts a completed transfer when it is reached.
    void Complete();
    /// Counts a completed transfer now.
    void CountCompleted() { ++m_completed; }

    /// Ends the wait for the key, if that is what is going on.
    void PressKey();
    /// Forgets everything that hasn't gone out.
    void Clear();

    bool IsEmpty() const { return m_actions.empty(); }
    int Completed() const { return m_completed; }

    /// Takes what is due at `now` on a line of `baud` (0: no limit), at most one message at a time.
    Delivery Take(TimePoint now, int baud);
    /// When to ask again; empty when nothing waits.
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
    std::size_t m_sent = 0; // bytes of the first action that are out
    std::optional<TimePoint> m_holdEnd;
    std::optional<TimePoint> m_due;
    BaudClock m_clock;
    int m_completed = 0;
};

} // namespace Simulator
