// Faults of a dialogue: of its cable, its radio, its port and its user.
#pragma once

#include "campaign/Random.h"
#include "simulator/FaultPlan.h"

#include <optional>
#include <string>
#include <vector>

namespace Campaign {

/// What happens. The comment says what Fault::at counts, and what Fault::value is.
enum class FaultKind {
    // Cable; at: the byte of that direction, from 0
    Lost,        ///< value: how many bytes, from this one on
    Doubled,     ///< the byte arrives twice
    Changed,     ///< value: bits that are turned over
    Delayed,     ///< value: ms that this byte and all later ones wait
    NoiseBefore, ///< value: how many bytes of noise
    NoiseAfter,  ///< same, behind the byte
    Cut,         ///< nothing arrives from this byte on
    Unplugged,   ///< the port is gone from this byte on
    // Radio and user; at: the byte of that direction at which it happens
    Restart, ///< the radio starts again; value: ms that it needs
    Cancel,  ///< the user cancels; value: ms later
    // Radio; at: the message, from 0
    LineBefore, ///< the radio repeats the message before instead
    Twice,      ///< the radio sends the message twice
    BusyFor,    ///< a wait message first; value: ms between the two. Digital radios only.
    Babble,     ///< every message from this one on is a text that nobody asked for. Digital radios only.
    // Radio; at: the answer of the transfer, from 1, as the radio counts it
    Silence,
    LateAck,
    NoAck,
    Noise,
    Torn,
    CutLine,
    Vanish,
    WrongChecksum,
    WrongChecksumAlways,
    Refusal,
    RefusalAlways,
    Wait,
    Joined,
    LineFeed,
    EndRecord,
    MissedSpeed,
    BusyErasing,
    // Port; at and value mean nothing
    PortTaken, ///< another program has the port
    Count
};

constexpr int FaultKinds = static_cast<int>(FaultKind::Count);

/// Direction of the bytes that a fault counts.
enum class Side { ToRadio, ToProgram };

struct Fault {
    FaultKind kind;
    Side side = Side::ToProgram;
    int at = 0;
    int value = 0;

    bool operator==(const Fault&) const = default;
};

/// What Fault::at counts.
enum class Place { Byte, Message, Answer, Start };
Place PlaceOf(FaultKind kind);

/// Name of the kind, such as "lost".
const char* NameOf(FaultKind kind);

/// One line that a person can read, such as "lost 3 bytes from byte 120 to the radio on".
std::string TextOf(const Fault& fault);

/// The kind as the simulated radio's own plan knows it; nothing for the others.
std::optional<Simulator::FaultKind> PlanKind(FaultKind kind);

/// A fault of a dialogue with about this many bytes each way and answers.
/// @param digital whether faults that need records can be chosen
Fault AnyFault(Random& random, bool digital, int bytesToRadio, int bytesToProgram, int answers);

} // namespace Campaign
