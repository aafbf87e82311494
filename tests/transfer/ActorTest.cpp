// The second course of events that plays a radio in virtual time.
#include "tests/transfer/Actor.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace transfertest;
using Campaign::Moment;
using Campaign::VirtualTime;
using std::chrono::milliseconds;

namespace {

class ActorTest : public ::testing::Test {
protected:
    VirtualTime m_time;
    std::vector<std::string> m_events;

    void Note(const std::string& what) {
        m_events.push_back(what + " at " + std::to_string(m_time.Milliseconds()));
    }
};

} // namespace

TEST_F(ActorTest, RunsOnlyWhileTheTimeRuns) {
    Actor actor(m_time, [&] { Note("actor"); });
    Note("test");
    EXPECT_FALSE(actor.HasEnded());
    m_time.AdvanceTo(Moment() + milliseconds(5));
    EXPECT_TRUE(actor.HasEnded());
    EXPECT_EQ(m_events, (std::vector<std::string>{"test at 0", "actor at 0"}));
}

TEST_F(ActorTest, WaitsInVirtualTimeAndTakesTurnsWithTheTest) {
    const auto never = [] { return false; };
    Actor* self = nullptr;
    Actor actor(m_time, [&] {
        for (int turn = 0; turn < 3; ++turn) {
            self->Wait(m_time.Now() + milliseconds(10), never);
            Note("actor");
        }
    });
    self = &actor;
    for (int turn = 0; turn < 3; ++turn) {
        m_time.AdvanceTo(m_time.Now() + milliseconds(15));
        Note("test");
    }
    EXPECT_EQ(m_events, (std::vector<std::string>{"actor at 10", "test at 15", "actor at 20", "actor at 30",
                                                  "test at 30", "test at 45"}));
}

TEST_F(ActorTest, GoesOnAtOnceWhenItIsWokenAndItsConditionHolds) {
    bool ready = false;
    Actor* self = nullptr;
    Actor actor(m_time, [&] {
        self->Wait(m_time.Now() + milliseconds(1000), [&] { return ready; });
        Note("actor");
    });
    self = &actor;
    m_time.AdvanceTo(Moment() + milliseconds(3));
    actor.Wake();
    m_time.AdvanceTo(Moment() + milliseconds(4));
    EXPECT_FALSE(actor.HasEnded()) << "it was woken, but its condition didn't hold";
    ready = true;
    actor.Wake();
    m_time.AdvanceTo(Moment() + milliseconds(5));
    EXPECT_EQ(m_events, (std::vector<std::string>{"actor at 4"}));
}

TEST_F(ActorTest, IsWaitedForByFinish) {
    Actor* self = nullptr;
    Actor actor(m_time, [&] { self->Wait(m_time.Now() + milliseconds(700), [] { return false; }); });
    self = &actor;
    actor.Finish();
    EXPECT_TRUE(actor.HasEnded());
    EXPECT_EQ(m_time.Milliseconds(), 700);
}

TEST_F(ActorTest, LeavesEventsThatFindItGone) {
    {
        Actor* self = nullptr;
        bool ready = false;
        Actor actor(m_time, [&] { self->Wait(m_time.Now() + milliseconds(900), [&] { return ready; }); });
        self = &actor;
        m_time.AdvanceTo(Moment() + milliseconds(1));
        ready = true;
        actor.Wake();
        actor.Finish();
        EXPECT_EQ(m_time.Milliseconds(), 1);
    }
    m_time.AdvanceTo(Moment() + milliseconds(2000));
    EXPECT_EQ(m_time.Milliseconds(), 2000);
}
