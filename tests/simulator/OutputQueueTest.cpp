#include "simulator/OutputQueue.h"

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

TEST(OutputQueue, DeliversOneMessageAtATimeInOrder) {
    OutputQueue output;
    output.Say("one\r", "> one");
    output.Say("two\r", "> two");
    const auto first = output.Take(Start, 0);
    EXPECT_EQ(first.bytes, "one\r");
    EXPECT_EQ(first.notes, std::vector<std::string>{"> one"});
    EXPECT_LE(*output.NextDue(), Start);
    EXPECT_EQ(output.Take(Start, 0).bytes, "two\r");
    EXPECT_TRUE(output.IsEmpty());
    EXPECT_FALSE(output.NextDue());
}

TEST(OutputQueue, NotesAPacedMessageWhenItsLastByteIsOut) {
    OutputQueue output;
    output.Say("abcd", "> abcd");
    EXPECT_EQ(output.Take(Start, 9600).bytes, "");
    EXPECT_EQ(*output.NextDue(), Start + 4 * 1041667ns);
    const auto part = output.Take(Start + 3200us, 9600);
    EXPECT_EQ(part.bytes, "abc");
    EXPECT_TRUE(part.notes.empty());
    const auto rest = output.Take(Start + 4200us, 9600);
    EXPECT_EQ(rest.bytes, "d");
    EXPECT_EQ(rest.notes, std::vector<std::string>{"> abcd"});
}

TEST(OutputQueue, HoldsWhatStandsBehindAPause) {
    OutputQueue output;
    output.Pause(200ms, "! late");
    output.Say("x", "");
    EXPECT_EQ(output.Take(Start, 0).notes, std::vector<std::string>{"! late"});
    EXPECT_EQ(*output.NextDue(), Start + 200ms);
    EXPECT_EQ(output.Take(Start + 199ms, 0).bytes, "");
    EXPECT_EQ(output.Take(Start + 200ms, 0).bytes, "x");
}

TEST(OutputQueue, NeedsTheFullTimeForBytesBehindAPause) {
    OutputQueue output;
    output.Say("a", "");
    output.Pause(200ms, "");
    output.Say("bc", "");
    output.Take(Start, 9600);
    EXPECT_EQ(output.Take(Start + 2ms, 9600).bytes, "a");
    EXPECT_EQ(output.Take(Start + 202ms, 9600).bytes, "");
    EXPECT_EQ(output.Take(Start + 203200us, 9600).bytes, "b");
}

TEST(OutputQueue, GoesOnAsSoonAsTheKeyIsPressed) {
    OutputQueue output;
    output.AwaitKey(1h);
    output.Say("x", "");
    EXPECT_EQ(output.Take(Start, 0).bytes, "");
    output.PressKey();
    EXPECT_EQ(output.Take(Start + 1ms, 0).bytes, "x");
}

TEST(OutputQueue, KeyDoesNotShortenAnotherPause) {
    OutputQueue output;
    output.Pause(1h, "");
    output.Say("x", "");
    output.Take(Start, 0);
    output.PressKey();
    EXPECT_EQ(output.Take(Start + 1ms, 0).bytes, "");
}

TEST(OutputQueue, CountsATransferOnlyWhenAllBeforeItIsOut) {
    OutputQueue output;
    output.Say("ab", "");
    output.Complete();
    output.Take(Start, 9600);
    EXPECT_EQ(output.Completed(), 0);
    output.Take(Start + 3ms, 9600);
    EXPECT_EQ(output.Completed(), 1);
    output.Complete();
    EXPECT_EQ(output.Completed(), 2) << "with nothing before it, at once";
}

TEST(OutputQueue, ForgetsAHalfSentMessageWhenCleared) {
    OutputQueue output;
    output.Say("abcdef", "");
    output.Take(Start, 9600);
    EXPECT_EQ(output.Take(Start + 3200us, 9600).bytes, "abc");
    output.Clear();
    output.Say("xyz", "");
    EXPECT_EQ(output.Take(Start + 4ms, 0).bytes, "xyz");
}

} // namespace
