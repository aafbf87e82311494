// A thread that waits for another's lines.
#include "transfer/ArrivalCount.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

using Steady = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::chrono::minutes Long{1};

TEST(ArrivalCount, ThatIsRaisedWakesTheWaitingThread) {
    ArrivalCount arrivals;
    const auto end = Steady::now() + Long;
    for (unsigned line = 0; line < 20; ++line) {
        const unsigned before = arrivals.Value();
        EXPECT_EQ(before, line);
        std::thread other([&] {
            std::this_thread::sleep_for(milliseconds(line % 4)); // before and after the wait begins
            arrivals.Raise();
            arrivals.Wake();
        });
        EXPECT_TRUE(arrivals.AwaitChange(before, end));
        other.join();
    }
    EXPECT_LT(Steady::now(), end);
}

TEST(ArrivalCount, ThatWasRaisedBeforeTheWaitEndsItAtOnce) {
    ArrivalCount arrivals;
    const unsigned before = arrivals.Value();
    arrivals.Raise();
    const auto end = Steady::now() + Long;
    EXPECT_TRUE(arrivals.AwaitChange(before, end));
    EXPECT_LT(Steady::now(), end);
}

TEST(ArrivalCount, ThatNoOneRaisesIsWaitedForUntilTheEnd) {
    ArrivalCount arrivals;
    arrivals.Raise();
    arrivals.Wake();
    for (const milliseconds time : {milliseconds(-5), milliseconds(0), milliseconds(30)}) {
        const auto end = Steady::now() + time;
        EXPECT_FALSE(arrivals.AwaitChange(arrivals.Value(), end)) << time.count();
        EXPECT_GE(Steady::now(), end) << time.count();
    }
}

} // namespace
