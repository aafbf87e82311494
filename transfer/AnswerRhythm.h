// How long a radio takes for its answers.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>

/// Foretells when a radio's answer will be complete. The lines of the channels have the same length, and so
/// have their answers: most answers of a transfer take equally long.
class AnswerRhythm {
public:
    using Moment = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::steady_clock::duration;

    /// Answers count as equally long if they differ by less.
    static constexpr std::chrono::microseconds Tolerance{300};

    /// Events are handled this long before an expected answer, so that they don't delay the reply to it.
    static constexpr std::chrono::milliseconds Quiet{1};

    /// A sleeping thread gets up some 0.1 ms late. So an expected answer is awaited without sleep, from this
    /// long before until as long after the moment.
    static constexpr std::chrono::microseconds Watch{120};

    /// A part of a wait.
    struct Part {
        Moment end;
        bool asleep;       ///< whether to leave the processor to others
        bool eventsFollow; ///< whether events are to be handled at its end
    };

    /// A wait for an answer begins.
    void Asked(Moment now);

    /// The answer is there. Without a question before it, it tells nothing.
    void Answered(Moment now);

    /// Returns when the answer that is waited for is expected: as long after the question as the middle one
    /// of the last three took. Nothing if these weren't equally long, or if no answer is waited for.
    std::optional<Moment> Expected() const;

    /// Returns how to wait from now on: asleep with no end if no answer is expected or it is overdue.
    Part Next(Moment now) const;

private:
    std::optional<Moment> m_asked;
    std::array<Duration, 3> m_last{};
    size_t m_count = 0; // of all answers
};
