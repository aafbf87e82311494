#include "simulator/FaultyLink.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace Simulator;
using namespace std::chrono_literals;

constexpr TimePoint Start{1h};
constexpr char Ack[] = "\x05";
const std::string Noise("\x00\xFF\x80\x1B\xFE\x7F\x00\xF5", 8);

/// A link with one fault, and its output without waiting for real time.
class Bench {
public:
    explicit Bench(const char* fault) {
        m_link.emplace(FaultPlan({*ParseFault(fault)}), 300ms, m_output, m_journal);
    }

    FaultyLink& Link() { return *m_link; }
    OutputQueue& Out() { return m_output; }

    std::string Played() {
        std::string all;
        for (TimePoint now = Start; !m_output.IsEmpty(); now += 10ms) {
            const auto delivery = m_output.Take(now, 0);
            all += delivery.bytes;
            m_vanished = m_vanished || delivery.vanish;
        }
        return all;
    }
    bool Vanished() const { return m_vanished; }

    std::string Lines(std::initializer_list<const char*> lines) {
        for (const char* line : lines)
            m_link->Answer(line, AnswerKind::Line);
        return Played();
    }
    std::string Acks(int count) {
        for (int k = 0; k < count; ++k)
            m_link->Answer(Ack, AnswerKind::Acknowledgement);
        return Played();
    }

private:
    Journal m_journal;
    OutputQueue m_output;
    std::optional<FaultyLink> m_link;
    bool m_vanished = false;
};

TEST(Silence, FromALineOnEndsAllAnswersUntilThePortIsClosed) {
    Bench bench("silence@3");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Lines({"1\r", "2\r", "3\r", "4\r"}), "1\r2\r");
    EXPECT_TRUE(bench.Link().IsDead());
    bench.Link().Print("300\r");
    bench.Link().EndTransfer();
    EXPECT_EQ(bench.Played(), "");
    EXPECT_EQ(bench.Out().Completed(), 0);
    bench.Link().PortClosed();
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Lines({"1\r"}), "1\r");
}

TEST(Silence, FromTheFirstLineOnAnswersNothing) {
    Bench bench("silence@1");
    bench.Link().BeginTransfer();
    EXPECT_TRUE(bench.Link().IsDead());
    EXPECT_EQ(bench.Acks(2), "");
}

TEST(MissingAcknowledgement, LeavesLaterOnesAsTheyAre) {
    Bench bench("no-ack@2");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Acks(1), Ack);
    EXPECT_EQ(bench.Acks(1), "");
    EXPECT_EQ(bench.Acks(1), Ack);
}

TEST(LateAcknowledgement, ComesAfterTheDelay) {
    Bench bench("late-ack@1");
    bench.Link().BeginTransfer();
    bench.Link().Answer(Ack, AnswerKind::Acknowledgement);
    EXPECT_EQ(bench.Out().Take(Start, 0).bytes, "");
    EXPECT_EQ(bench.Out().Take(Start + 299ms, 0).bytes, "");
    EXPECT_EQ(bench.Out().Take(Start + 300ms, 0).bytes, Ack);
}

TEST(AcknowledgementFaults, LeaveLinesAlone) {
    for (const char* fault : {"no-ack@1", "late-ack@1"}) {
        Bench bench(fault);
        bench.Link().BeginTransfer();
        bench.Link().Answer("1\r", AnswerKind::Line);
        EXPECT_EQ(bench.Out().Take(Start, 0).bytes, "1\r") << fault;
    }
}

TEST(LineFaults, LeaveAcknowledgementsAlone) {
    for (const char* fault : {"cut@1", "torn@1"}) {
        Bench bench(fault);
        bench.Link().BeginTransfer();
        EXPECT_EQ(bench.Acks(1), Ack) << fault;
    }
}

TEST(Noise, StandsBeforeTheAnswerAndIsNeverAnAcknowledgementOrALineEnd) {
    Bench bench("noise@2");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Lines({"1\r", "2\r", "3\r"}), "1\r" + Noise + "2\r3\r");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Acks(2), Ack + Noise + Ack);
    EXPECT_EQ(Noise.find_first_of("\x05\r"), std::string::npos);
}

TEST(TornLine, ComesInFourPiecesWithPauses) {
    Bench bench("torn@1");
    bench.Link().BeginTransfer();
    bench.Link().Answer("0123456789\r", AnswerKind::Line);
    const char* const pieces[] = {"012", "345", "678", "9\r"};
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(bench.Out().Take(Start + k * 150ms, 0).bytes, pieces[k]);
        EXPECT_EQ(bench.Out().Take(Start + k * 150ms + 140ms, 0).bytes, "");
    }
}

TEST(CutLine, KeepsTheLineEndThatItHad) {
    for (const char* end : {"\r", "\x8D"}) {
        Bench bench("cut@1");
        bench.Link().BeginTransfer();
        EXPECT_EQ(bench.Lines({(std::string("abcdefg") + end).c_str()}), std::string("abcd") + end);
    }
}

TEST(CutLine, EndsInItsMiddle) {
    Bench bench("cut@2");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Lines({"123456789\r", "abcdefghi\r", "x\r"}), "123456789\rabcde\rx\r");
}

TEST(Unplug, ComesAfterWhatWasSaidBefore) {
    Bench bench("unplug@2");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Lines({"1\r", "2\r", "3\r"}), "1\r");
    EXPECT_TRUE(bench.Vanished());
    EXPECT_TRUE(bench.Link().IsDead());
}

TEST(FaultOfOneTransfer, LeavesTheOthersAlone) {
    Bench bench("no-ack@1/2");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Acks(1), Ack);
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Acks(1), "");
    bench.Link().BeginTransfer();
    EXPECT_EQ(bench.Acks(1), Ack);
}

TEST(FaultWithoutATransfer, IsPlayedInEveryOne) {
    Bench bench("no-ack@1");
    for (int k = 0; k < 2; ++k) {
        bench.Link().BeginTransfer();
        EXPECT_EQ(bench.Acks(2), Ack);
    }
}

} // namespace
