// Faults that a simulated radio is asked to play.
#pragma once

#include "simulator/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

enum class FaultKind {
    Silence, ///< the radio is dead from this answer on, until the port is closed
    LateAck, ///< the acknowledgement is late
    NoAck,   ///< the acknowledgement is missing
    Noise,   ///< garbage bytes precede the answer
    Torn,    ///< the line arrives in pieces
    Cut,     ///< the line breaks off in the middle
    Unplug,  ///< the device disappears
    // Only digital radios, which use records, can play these:
    Checksum,       ///< the answer has a wrong checksum
    ChecksumAlways, ///< this answer and all later ones have a wrong checksum
    Nak,            ///< a refusal replaces the answer once
    NakAlways,      ///< refusals replace this answer and all later ones
    Wait,           ///< a wait message precedes the answer
    Joined,         ///< a wait message and the answer arrive in one burst
    LineFeed,       ///< line feeds follow the carriage returns, from this answer on
    End,            ///< an end record replaces the answer
    Deaf,           ///< the radio is dead after a change of speed, at any answer
    Busy            ///< a wait message precedes the confirmation of erasing, at any answer
};

/// One fault at one answer of a transfer. Answers count from 1: memory lines when reading, acknowledgements
/// when writing.
struct Fault {
    FaultKind kind;
    int answer;
    int transfer = 0; ///< counted from 1 over the life of the process; 0: in every transfer
};

/// Reads "KIND@N" or "KIND@N/T" (only in transfer T).
Result<Fault> ParseFault(std::string_view text);

/// Names of all kinds as ParseFault reads them, separated by commas.
std::string FaultNames();

/// Returns the fault as text that ParseFault reads.
std::string FaultText(const Fault& fault);

/// All faults of one run.
class FaultPlan {
public:
    explicit FaultPlan(std::vector<Fault> faults = {}) : m_faults(std::move(faults)) {}

    /// Returns the fault of this kind to play at this answer of this transfer, or nullptr. Lasting kinds
    /// match from their answer on; kinds that don't depend on answers match at any.
    const Fault* Find(FaultKind kind, int transfer, int answer) const;

private:
    std::vector<Fault> m_faults;
};

} // namespace Simulator
