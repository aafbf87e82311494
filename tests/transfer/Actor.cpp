#include "tests/transfer/Actor.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

namespace transfertest {

/// Passed to and fro between the two threads. Who doesn't have it waits.
struct Actor::Baton {
    void Give(bool toActor) {
        std::unique_lock lock(mutex);
        withActor = toActor;
        passed.notify_all();
    }
    void Await(bool atActor) {
        std::unique_lock lock(mutex);
        passed.wait(lock, [&] { return withActor == atActor; });
    }

    std::mutex mutex;
    std::condition_variable passed;
    bool withActor = false;
    bool ended = false; ///< the function has returned
    bool waits = false; ///< the function is in Wait, or hasn't begun
    std::thread thread;
};

Actor::Actor(Campaign::VirtualTime& time, std::function<void()> play)
    : m_time(time), m_baton(std::make_shared<Baton>()) {
    m_baton->waits = true;
    m_baton->thread = std::thread([baton = m_baton.get(), play = std::move(play)] {
        baton->Await(true);
        play();
        baton->ended = true;
        baton->Give(false);
    });
    Wake();
}

Actor::~Actor() {
    // A thread that waits for ever can't be ended.
    if (!RunToEnd())
        std::terminate();
}

void Actor::Finish() {
    if (!RunToEnd())
        throw std::logic_error("an actor waits for something that never comes");
}

bool Actor::RunToEnd() {
    while (!m_baton->ended)
        if (!m_time.RunNext(Campaign::Moment::max()))
            return false;
    if (m_baton->thread.joinable())
        m_baton->thread.join();
    return true;
}

bool Actor::HasEnded() const {
    return m_baton->ended;
}

void Actor::Wait(Campaign::Moment end, const std::function<bool()>& ready) {
    if (end < Campaign::Moment::max())
        m_time.At(end, [this, baton = m_baton] { Resume(baton); });
    while (!ready() && m_time.Now() < end) {
        m_baton->waits = true;
        m_baton->Give(false);
        m_baton->Await(true);
    }
}

void Actor::Wake() {
    m_time.At(m_time.Now(), [this, baton = m_baton] { Resume(baton); });
}

void Actor::Resume(const std::shared_ptr<Baton>& baton) {
    if (baton->ended || !baton->waits)
        return;
    baton->waits = false;
    baton->Give(true);
    baton->Await(false);
}

} // namespace transfertest
