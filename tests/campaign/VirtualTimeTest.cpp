#include "campaign/VirtualTime.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Campaign::Moment;
using Campaign::VirtualTime;
using std::chrono::milliseconds;

Moment At(int ms) {
    return Moment{} + milliseconds(ms);
}

TEST(VirtualTime, RunsEventsInTheOrderOfTheirTimes) {
    VirtualTime time;
    std::string order;
    time.At(At(30), [&] { order += "c"; });
    time.At(At(10), [&] { order += "a"; });
    time.At(At(20), [&] { order += "b"; });
    time.AdvanceTo(At(25));
    EXPECT_EQ(order, "ab");
    EXPECT_EQ(time.Milliseconds(), 25);
    time.AdvanceTo(At(40));
    EXPECT_EQ(order, "abc");
}

TEST(VirtualTime, RunsEventsOfOneMomentInTheOrderInWhichTheyCame) {
    VirtualTime time;
    std::string order;
    for (const char* name : {"a", "b", "c", "d"})
        time.At(At(5), [&order, name] { order += name; });
    time.AdvanceTo(At(5));
    EXPECT_EQ(order, "abcd");
}

TEST(VirtualTime, StandsAtTheTimeOfTheEventThatRuns) {
    VirtualTime time;
    int64_t seen = 0;
    time.At(At(7), [&] { seen = time.Milliseconds(); });
    EXPECT_TRUE(time.RunNext(At(100)));
    EXPECT_EQ(seen, 7);
    EXPECT_EQ(time.Milliseconds(), 7);
}

TEST(VirtualTime, RunsNothingAfterTheLimit) {
    VirtualTime time;
    bool ran = false;
    time.At(At(7), [&] { ran = true; });
    EXPECT_FALSE(time.RunNext(At(6)));
    EXPECT_FALSE(ran);
    EXPECT_EQ(time.Milliseconds(), 0);
}

TEST(VirtualTime, RunsAnEventOfThePastNow) {
    VirtualTime time;
    time.AdvanceTo(At(50));
    int64_t seen = 0;
    time.At(At(10), [&] { seen = time.Milliseconds(); });
    time.AdvanceTo(At(60));
    EXPECT_EQ(seen, 50);
}

TEST(VirtualTime, RunsEventsThatEventsHaveAdded) {
    VirtualTime time;
    int count = 0;
    std::function<void()> again = [&] {
        if (++count < 5)
            time.At(time.Now() + milliseconds(10), again);
    };
    time.At(At(0), again);
    time.AdvanceTo(At(35));
    EXPECT_EQ(count, 4);
    time.AdvanceTo(At(40));
    EXPECT_EQ(count, 5);
}

} // namespace
