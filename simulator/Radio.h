// Interfaces of a simulated radio and of the cable that connects it to a port.
#pragma once

#include "simulator/FaultPlan.h"
#include "simulator/Result.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace Simulator {

/// Kind of an answer. Some faults apply only to lines, some only to acknowledgements.
enum class AnswerKind {
    Line,
    Acknowledgement, ///< a single character
    Record,          ///< a line of a digital radio
    RecordAcknowledgement
};

/// The radio's end of its cable. Sends all output in order, as fast as the line allows.
class RadioLink {
public:
    virtual ~RadioLink() = default;

    /// Begins a transfer, whose answers are counted from 1.
    virtual void BeginTransfer() = 0;
    /// Same as BeginTransfer, for a radio that sends other output before its first counted answer. Call
    /// BeginAnswers when counted answers follow.
    virtual void BeginDialogue() { BeginTransfer(); }
    /// Announces that counted answers follow.
    virtual void BeginAnswers() {}
    /// Number of the next counted answer, from 1.
    virtual int NextAnswer() const { return 1; }
    /// True if this fault is to be played at this answer; also logs it as played. For faults that the radio
    /// itself must play. A cable without faults returns false.
    virtual bool Plays(FaultKind, int) { return false; }
    /// Delays all later output by this time.
    virtual void Pause(std::chrono::milliseconds) {}
    /// Sends one counted answer, including its line end.
    virtual void Answer(std::string_view bytes, AnswerKind kind) = 0;
    /// Sends text that isn't counted: a banner, an end line.
    virtual void Print(std::string_view bytes) = 0;
    /// Holds all later output until the radio's key is pressed, or until `patience` has passed.
    virtual void WaitForKey(std::chrono::milliseconds patience) = 0;
    /// Counts the transfer as completed now.
    virtual void EndTransfer() = 0;
    /// Counts the transfer as completed when all earlier output has been sent.
    virtual void EndTransferWhenSent() = 0;
    /// True while output is pending.
    virtual bool IsSending() const = 0;
    /// Writes a line to the log.
    virtual void Note(std::string_view text) = 0;
    /// Reports a mistake of the other side in the log and on standard error.
    virtual void Complain(std::string_view text) = 0;
};

/// A radio as its cable sees it.
class Radio {
public:
    virtual ~Radio() = default;

    /// Sets the speed of the other side, in baud. Call before Hear.
    virtual void LineSpeed(int) {}
    /// Speed at which the radio listens and sends, in baud.
    virtual int Speed() const { return 9600; }
    /// Announces that nobody may tell when the other side closes the port. The command that begins a dialogue
    /// then ends an unfinished one, at whatever speed it comes.
    virtual void ExpectUnseenCloses() = 0;
    /// Receives one byte from the wire.
    virtual void Hear(uint8_t byte) = 0;
    /// True between two dialogues, before the first byte of the next one.
    virtual bool IsAtRest() const = 0;
    /// True if these next bytes can only be the start of a new dialogue, whatever came before.
    virtual bool BeginsAnew(std::string_view) const { return false; }
    /// Call when the other side has closed the port. Drops a dialogue in progress; keeps the memories.
    virtual void PortClosed() = 0;
    /// Writes the memories to their file if there is one.
    [[nodiscard]] virtual Failure Store() = 0;
    /// Number of violations by the other side; 0 for radios that don't count them.
    virtual int Violations() const { return 0; }
};

} // namespace Simulator
