// What stands on the two sides of a simulated port: the radio, and the cable that it speaks into.
#pragma once

#include "simulator/FaultPlan.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace Simulator {

/// What an answer is; some faults concern only lines, some only acknowledgements.
enum class AnswerKind {
    Line,
    Acknowledgement, ///< a single character
    Record,          ///< a line of a digital radio
    RecordAcknowledgement
};

/// The radio's end of its cable. What is said here goes out in order, as fast as the line allows.
class RadioLink {
public:
    virtual ~RadioLink() = default;

    /// A new exchange begins: its answers are counted from 1.
    virtual void BeginTransfer() = 0;
    /// The same for a radio that has more to say before its first answer; BeginAnswers comes next to that.
    virtual void BeginDialogue() { BeginTransfer(); }
    /// Counted answers follow.
    virtual void BeginAnswers() {}
    /// The next counted answer, from 1.
    virtual int NextAnswer() const { return 1; }
    /// True when that fault is to be played at that answer; it is then noted as played. For faults that a
    /// radio has to play itself; a cable without faults plays none.
    virtual bool Plays(FaultKind, int) { return false; }
    /// Nothing that is said from here on goes out before this time is over.
    virtual void Pause(std::chrono::milliseconds) {}
    /// One counted answer, its end included.
    virtual void Answer(std::string_view bytes, AnswerKind kind) = 0;
    /// Text that isn't counted: a banner, an end line.
    virtual void Print(std::string_view bytes) = 0;
    /// What is said after this waits until the radio's key is pressed; `patience` presses it.
    virtual void WaitForKey(std::chrono::milliseconds patience) = 0;
    /// The exchange is complete.
    virtual void EndTransfer() = 0;
    /// The exchange is complete as soon as all that was said before has gone out.
    virtual void EndTransferWhenSent() = 0;
    /// True while something is still to go out.
    virtual bool IsSending() const = 0;
    /// A line for the log.
    virtual void Note(std::string_view text) = 0;
    /// Something that the other side got wrong: for the log and for the person watching.
    virtual void Complain(std::string_view text) = 0;
};

/// A radio as its cable sees it.
class Radio {
public:
    virtual ~Radio() = default;

    /// The speed that the other side has set, in baud; told before bytes are heard.
    virtual void LineSpeed(int) {}
    /// Takes one byte from the wire.
    virtual void Hear(std::uint8_t byte) = 0;
    /// True between two dialogues: nothing has been heard of the next one yet.
    virtual bool IsAtRest() const = 0;
    /// True if bytes that come next can only be the first of a new dialogue, whatever went before.
    virtual bool BeginsAnew(std::string_view) const { return false; }
    /// The other side has gone: a dialogue in progress is forgotten, memories stay.
    virtual void PortClosed() = 0;
    /// Writes the memories to their file if there is one. Answers false with a reason on failure.
    virtual bool Store(std::string& trouble) = 0;
    /// How often the other side has broken the rules; counted by radios that tell every breach.
    virtual int Violations() const { return 0; }
};

} // namespace Simulator
