// Output of a digital radio, with the faults that depend on its records.
#pragma once

#include "simulator/Radio.h"

#include <string>
#include <string_view>

namespace Simulator {

/// Frames the radio's records and sends them over the link. Counted answers are the memory records it sends
/// and the acknowledgements of those it receives.
class DigitalReplies {
public:
    /// `link` must outlive the voice.
    explicit DigitalReplies(RadioLink& link) : m_link(link) {}

    /// Begins a dialogue, in which no fault has been played yet.
    void BeginDialogue();

    /// Sends a line that isn't counted; `body` has no checksum.
    void Say(std::string_view body);
    void SayAck();
    void SayNak();
    void SayEnd();
    /// Sends a wait message and pauses, if the busy fault is to be played.
    void MaybeBusy();

    /// What to send instead of the next counted answer.
    enum class Instead { Nothing, Nak, End };
    /// Returns the fault to play now; reports a single refusal only once.
    Instead NextInstead();

    /// Sends the acknowledgement of a memory record.
    void Acknowledge();
    /// Sends a memory record; `body` has no checksum.
    void SendRecord(std::string_view body);
    /// Sends the last memory record again, without counting it again.
    void RepeatRecord(std::string_view body);

private:
    void AnswerLine(std::string_view body, AnswerKind kind);
    std::string Line(std::string_view body, int answer, bool spoiled = false);

    RadioLink& m_link;
    int m_refused = 0; // number of the answer that was already refused once
};

} // namespace Simulator
