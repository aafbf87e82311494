// The faults that a simulated radio is asked to play.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

enum class FaultKind {
    Silence, ///< dead from this answer on, until the port is closed
    LateAck, ///< the acknowledgement comes late
    NoAck,   ///< the acknowledgement doesn't come
    Noise,   ///< garbage bytes before the answer
    Torn,    ///< the line comes in pieces
    Cut,     ///< the line breaks off in its middle
    Unplug,  ///< the device disappears
    // Only digital radios, which speak in records, can play these:
    Checksum,       ///< the answer has a wrong checksum
    ChecksumAlways, ///< so have it and all later ones
    Nak,            ///< refused once instead
    NakAlways,      ///< refused from then on
    Wait,           ///< asks for patience first
    Joined,         ///< the same, and the answer in one burst with it
    LineFeed,       ///< line feeds after the carriage returns, from this answer on
    End,            ///< an end record instead of the answer
    Deaf,           ///< dead once the speed has changed, whatever the answer
    Busy            ///< asks for patience before it has erased, whatever the answer
};

/// One fault at one answer of a transfer. Answers are memory lines on reading and acknowledgements on
/// writing, counted from 1.
struct Fault {
    FaultKind kind;
    int answer;
    int transfer = 0; ///< counted from 1 over the life of the process; 0: in every transfer
};

/// Reads "KIND@N" or "KIND@N/T" (only in transfer T). Empty with a sentence in `trouble` on anything else.
std::optional<Fault> ParseFault(std::string_view text, std::string& trouble);

/// All kinds, as ParseFault knows them.
std::string FaultNames();

/// The text that ParseFault reads.
std::string FaultText(const Fault& fault);

/// All faults of one run.
class FaultPlan {
public:
    explicit FaultPlan(std::vector<Fault> faults = {}) : m_faults(std::move(faults)) {}

    /// The fault of that kind that is played at that answer of that transfer, or nullptr: lasting kinds
    /// from their answer on, those that have nothing to do with answers at any.
    const Fault* Find(FaultKind kind, int transfer, int answer) const;

private:
    std::vector<Fault> m_faults;
};

} // namespace Simulator
