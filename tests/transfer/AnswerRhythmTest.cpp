// How the clock of a transfer foretells a radio's answers.
#include "transfer/AnswerRhythm.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <tuple>

namespace {

using std::chrono::duration_cast;
using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;

class Rhythm : public ::testing::Test {
protected:
    /// The radio answers that long after the next question.
    void Answer(AnswerRhythm::Duration after) {
        m_rhythm.Asked(m_now);
        m_now += after;
        m_rhythm.Answered(m_now);
        m_now += seconds(1);
    }

    AnswerRhythm m_rhythm;
    AnswerRhythm::Moment m_now{};
};

TEST_F(Rhythm, ExpectsAnAnswerAfterTheMiddleTimeOfThree) {
    Answer(microseconds(15'050));
    Answer(microseconds(15'200));
    Answer(microseconds(15'000));
    m_rhythm.Asked(m_now);
    EXPECT_EQ(m_rhythm.Expected(), m_now + microseconds(15'050));
}

TEST_F(Rhythm, ExpectsNothingBeforeThreeAnswers) {
    for (int answers = 0; answers < 3; ++answers) {
        m_rhythm.Asked(m_now);
        EXPECT_EQ(m_rhythm.Expected(), std::nullopt) << answers << " answers";
        Answer(milliseconds(15));
    }
}

TEST_F(Rhythm, ExpectsNothingWhenNoAnswerIsAwaited) {
    for (int answers = 0; answers < 3; ++answers)
        Answer(milliseconds(15));
    EXPECT_EQ(m_rhythm.Expected(), std::nullopt);
}

TEST_F(Rhythm, IsBrokenByAnAnswerOfAnotherLengthAndComesBackAfterThree) {
    for (int answers = 0; answers < 3; ++answers)
        Answer(milliseconds(15));
    Answer(milliseconds(15) + AnswerRhythm::Tolerance);
    m_rhythm.Asked(m_now);
    EXPECT_EQ(m_rhythm.Expected(), std::nullopt);
    for (int answers = 0; answers < 3; ++answers)
        Answer(milliseconds(15));
    m_rhythm.Asked(m_now);
    EXPECT_EQ(m_rhythm.Expected(), m_now + milliseconds(15));
}

TEST_F(Rhythm, IsNotChangedByAnAnswerToNoQuestion) {
    for (int answers = 0; answers < 3; ++answers)
        Answer(milliseconds(15));
    m_rhythm.Answered(m_now + milliseconds(100));
    m_rhythm.Asked(m_now);
    EXPECT_EQ(m_rhythm.Expected(), m_now + milliseconds(15));
}

class RhythmOfAWait : public Rhythm {
protected:
    void SetUp() override {
        for (int answers = 0; answers < 3; ++answers)
            Answer(milliseconds(15));
        m_rhythm.Asked(m_now);
    }

    /// The part of the wait that begins that long after the expected moment; its end in microseconds after
    /// that.
    std::tuple<int64_t, bool, bool> PartAt(microseconds offset) const {
        const auto expected = m_now + milliseconds(15);
        const AnswerRhythm::Part part = m_rhythm.Next(expected + offset);
        return {duration_cast<microseconds>(part.end - expected).count(), part.asleep, part.eventsFollow};
    }
};

TEST_F(RhythmOfAWait, LeavesTimeForEventsAMillisecondBeforeTheAnswer) {
    EXPECT_EQ(PartAt(milliseconds(-15)), std::tuple(-1000, true, true));
    EXPECT_EQ(PartAt(microseconds(-1001)), std::tuple(-1000, true, true));
    EXPECT_EQ(PartAt(microseconds(-1000)), std::tuple(-120, true, false));
}

TEST_F(RhythmOfAWait, DoesNotSleepAroundTheMomentOfTheAnswer) {
    EXPECT_EQ(PartAt(microseconds(-121)), std::tuple(-120, true, false));
    EXPECT_EQ(PartAt(microseconds(-120)), std::tuple(120, false, false));
    EXPECT_EQ(PartAt(microseconds(119)), std::tuple(120, false, false));
}

TEST_F(RhythmOfAWait, SleepsWhenTheAnswerIsOverdue) {
    const AnswerRhythm::Part part = m_rhythm.Next(m_now + milliseconds(15) + microseconds(120));
    EXPECT_TRUE(part.asleep);
    EXPECT_FALSE(part.eventsFollow);
    EXPECT_EQ(part.end, AnswerRhythm::Moment::max());
}

TEST_F(Rhythm, SleepsWhenNoAnswerIsExpected) {
    m_rhythm.Asked(m_now);
    const AnswerRhythm::Part part = m_rhythm.Next(m_now);
    EXPECT_TRUE(part.asleep);
    EXPECT_EQ(part.end, AnswerRhythm::Moment::max());
}

} // namespace
