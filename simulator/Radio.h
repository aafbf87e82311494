// What stands on the two sides of a simulated port: the radio, and the cable that it speaks into.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace Simulator {

/// What an answer is; some faults concern only one of the two.
enum class AnswerKind { Line, Acknowledgement };

/// The radio's end of its cable. What is said here goes out in order, as fast as the line allows.
class RadioLink {
public:
    virtual ~RadioLink() = default;

    /// A new exchange begins: its answers are counted from 1.
    virtual void BeginTransfer() = 0;
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

    /// Takes one byte from the wire.
    virtual void Hear(std::uint8_t byte) = 0;
    /// True between two dialogues: nothing has been heard of the next one yet.
    virtual bool IsAtRest() const = 0;
    /// The other side has gone: a dialogue in progress is forgotten, memories stay.
    virtual void PortClosed() = 0;
    /// Writes the memories to their file if there is one. Answers false with a reason on failure.
    virtual bool Store(std::string& trouble) = 0;
};

} // namespace Simulator
