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
    Unplug   ///< the device disappears
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

/// The text that ParseFault reads.
std::string FaultText(const Fault& fault);

/// All faults of one run.
class FaultPlan {
public:
    explicit FaultPlan(std::vector<Fault> faults = {}) : m_faults(std::move(faults)) {}

    /// The fault of that kind at that answer of that transfer, or nullptr.
    const Fault* Find(FaultKind kind, int transfer, int answer) const;

private:
    std::vector<Fault> m_faults;
};

} // namespace Simulator
