#include "simulator/Outlet.h"

#include <gtest/gtest.h>

namespace {

using namespace Simulator;
using namespace std::chrono_literals;

constexpr TimePoint Start{1h};

TEST(BaudClockAt9600, LetsAByteThroughEveryTenBits) {
    BaudClock clock;
    EXPECT_EQ(clock.Take(Start, 9600, 100), 0u);
    EXPECT_EQ(clock.Take(Start + 1040us, 9600, 100), 0u);
    EXPECT_EQ(clock.Take(Start + 1042us, 9600, 100), 1u);
    EXPECT_EQ(clock.Take(Start + 10420us, 9600, 100), 9u);
    EXPECT_EQ(clock.Take(Start + 1s, 9600, 1000), 949u);
    EXPECT_EQ(clock.Take(Start + 1s, 9600, 1000), 0u);
}

TEST(BaudClock, NeedsTheFullTimeAgainAfterARest) {
    BaudClock clock;
    clock.Take(Start, 9600, 1);
    EXPECT_EQ(clock.Take(Start + 2ms, 9600, 1), 1u);
    clock.Rest();
    EXPECT_EQ(clock.Take(Start + 1h, 9600, 5), 0u);
    EXPECT_EQ(clock.Take(Start + 1h + 1042us, 9600, 5), 1u);
}

TEST(BaudClock, WithoutASpeedHasNoLimit) {
    BaudClock clock;
    EXPECT_EQ(clock.Take(Start, 0, 5000), 5000u);
}

TEST(BaudClockAt115200, IsTwelveTimesAsFast) {
    BaudClock clock;
    clock.Take(Start, 115200, 2000);
    EXPECT_EQ(clock.Take(Start + 100ms, 115200, 2000), 1151u);
}

TEST(Outlet, DeliversOneMessageAtATimeInOrder) {
    Outlet outlet;
    outlet.Say("one\r", "> one");
    outlet.Say("two\r", "> two");
    const auto first = outlet.Take(Start, 0);
    EXPECT_EQ(first.bytes, "one\r");
    EXPECT_EQ(first.notes, std::vector<std::string>{"> one"});
    EXPECT_LE(*outlet.NextDue(), Start);
    EXPECT_EQ(outlet.Take(Start, 0).bytes, "two\r");
    EXPECT_TRUE(outlet.IsEmpty());
    EXPECT_FALSE(outlet.NextDue());
}

TEST(Outlet, NotesAPacedMessageWhenItsLastByteIsOut) {
    Outlet outlet;
    outlet.Say("abcd", "> abcd");
    EXPECT_EQ(outlet.Take(Start, 9600).bytes, "");
    EXPECT_EQ(*outlet.NextDue(), Start + 4 * 1041667ns);
    const auto part = outlet.Take(Start + 3200us, 9600);
    EXPECT_EQ(part.bytes, "abc");
    EXPECT_TRUE(part.notes.empty());
    const auto rest = outlet.Take(Start + 4200us, 9600);
    EXPECT_EQ(rest.bytes, "d");
    EXPECT_EQ(rest.notes, std::vector<std::string>{"> abcd"});
}

TEST(Outlet, HoldsWhatStandsBehindAPause) {
    Outlet outlet;
    outlet.Pause(200ms, "! late");
    outlet.Say("x", "");
    EXPECT_EQ(outlet.Take(Start, 0).notes, std::vector<std::string>{"! late"});
    EXPECT_EQ(*outlet.NextDue(), Start + 200ms);
    EXPECT_EQ(outlet.Take(Start + 199ms, 0).bytes, "");
    EXPECT_EQ(outlet.Take(Start + 200ms, 0).bytes, "x");
}

TEST(Outlet, NeedsTheFullTimeForBytesBehindAPause) {
    Outlet outlet;
    outlet.Say("a", "");
    outlet.Pause(200ms, "");
    outlet.Say("bc", "");
    outlet.Take(Start, 9600);
    EXPECT_EQ(outlet.Take(Start + 2ms, 9600).bytes, "a");
    EXPECT_EQ(outlet.Take(Start + 202ms, 9600).bytes, "");
    EXPECT_EQ(outlet.Take(Start + 203200us, 9600).bytes, "b");
}

TEST(Outlet, GoesOnAsSoonAsTheKeyIsPressed) {
    Outlet outlet;
    outlet.AwaitKey(1h);
    outlet.Say("x", "");
    EXPECT_EQ(outlet.Take(Start, 0).bytes, "");
    outlet.PressKey();
    EXPECT_EQ(outlet.Take(Start + 1ms, 0).bytes, "x");
}

TEST(Outlet, KeyDoesNotShortenAnotherPause) {
    Outlet outlet;
    outlet.Pause(1h, "");
    outlet.Say("x", "");
    outlet.Take(Start, 0);
    outlet.PressKey();
    EXPECT_EQ(outlet.Take(Start + 1ms, 0).bytes, "");
}

TEST(Outlet, CountsATransferOnlyWhenAllBeforeItIsOut) {
    Outlet outlet;
    outlet.Say("ab", "");
    outlet.Complete();
    outlet.Take(Start, 9600);
    EXPECT_EQ(outlet.Completed(), 0);
    outlet.Take(Start + 3ms, 9600);
    EXPECT_EQ(outlet.Completed(), 1);
    outlet.Complete();
    EXPECT_EQ(outlet.Completed(), 2) << "with nothing before it, at once";
}

TEST(Outlet, ForgetsAHalfSentMessageWhenCleared) {
    Outlet outlet;
    outlet.Say("abcdef", "");
    outlet.Take(Start, 9600);
    EXPECT_EQ(outlet.Take(Start + 3200us, 9600).bytes, "abc");
    outlet.Clear();
    outlet.Say("xyz", "");
    EXPECT_EQ(outlet.Take(Start + 4ms, 0).bytes, "xyz");
}

} // namespace
