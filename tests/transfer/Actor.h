// A second course of events in virtual time, written as a function that waits.
#pragma once

#include "campaign/VirtualTime.h"

#include <functional>
#include <memory>

namespace transfertest {

/// Runs a function in a thread of its own, but only while the test's own thread waits in virtual time: never
/// do both run. So the two need no locks, and what happens doesn't depend on the speed of the machine.
class Actor {
public:
    /// The function begins as soon as the time runs. `time` must outlive the actor.
    Actor(Campaign::VirtualTime& time, std::function<void()> play);
    /// Waits for the end of the function.
    ~Actor();
    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;

    /// Runs the time until the function has ended. Called by the test's thread.
    void Finish();

    bool HasEnded() const;

    /// Waits until `ready` holds or until `end`. Called by the function. Something must call Wake when
    /// `ready` may have changed.
    void Wait(Campaign::Moment end, const std::function<bool()>& ready);

    /// Lets a waiting function look again, as soon as the time runs.
    void Wake();

private:
    struct Baton;

    /// Runs the time until the function has ended. Returns false if it waits for something that never comes.
    bool RunToEnd();
    void Resume(const std::shared_ptr<Baton>& baton);

    Campaign::VirtualTime& m_time;
    std::shared_ptr<Baton> m_baton; ///< shared with events that come after the actor's end
};

} // namespace transfertest
