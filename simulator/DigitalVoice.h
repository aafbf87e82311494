// What a digital radio says, with the faults that need to know its records.
#pragma once

#include "simulator/Radio.h"

#include <string>
#include <string_view>

namespace Simulator {

/// Frames what is said and puts it into the cable. Counted are the memory records that are sent and the
/// acknowledgements of those that were heard.
class DigitalVoice {
public:
    /// `link` must outlive the voice.
    explicit DigitalVoice(RadioLink& link) : m_link(link) {}

    /// A dialogue begins; no fault has been played in it.
    void BeginDialogue();

    /// A line that isn't counted; `body` is without its checksum.
    void Say(std::string_view body);
    void SayAck();
    void SayNak();
    void SayEnd();
    /// Asks for patience while it erases, if it was told to.
    void MaybeBusy();

    /// What is to come instead of the next counted answer.
    enum class Instead { Nothing, Nak, End };
    /// Asks for it; a single refusal comes once.
    Instead NextInstead();

    /// The acknowledgement of a memory record.
    void Acknowledge();
    /// A memory record; `body` is without its checksum.
    void SendRecord(std::string_view body);
    /// The last one once more; it is counted only once.
    void RepeatRecord(std::string_view body);

private:
    void AnswerLine(std::string_view body, AnswerKind kind);
    std::string Line(std::string_view body, int answer, bool spoiled = false);

    RadioLink& m_link;
    int m_refused = 0; // the answer that was refused once already
};

} // namespace Simulator
