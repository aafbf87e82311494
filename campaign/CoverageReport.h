// What the runs of a campaign have reached, added up over all of its processes.
#pragma once

#include "campaign/Run.h"

#include <string>
#include <vector>

namespace Campaign {

/// The place of faults that happen before a driver has a state.
inline constexpr const char* StartOfTransfer = "start";

/// Counts of one process, or of several.
struct Totals {
    int64_t dialogues = 0;
    int64_t broken = 0; ///< seeds that broke a condition
    Coverage coverage;  ///< a port that is taken counts at StartOfTransfer
};

/// Adds what a runner has reached.
void AddCoverage(Totals& totals, const Coverage& coverage);

/// The counts as lines that AddLine reads: a line for each pair of state and kind of fault.
std::string CoverageLines(const Totals& totals);
/// The last line of a process.
std::string TotalLine(const Totals& totals, double seconds);

/// Adds a line of another process; lines of other forms change nothing.
void AddLine(Totals& totals, const std::string& line);

/// A table of kinds of fault and states for each driver, with the reasons for its gaps.
std::string CoverageTables(const Totals& totals);

/// Pairs that one fault alone can reach and that weren't reached, such as "digital, purge, busy-for".
std::vector<std::string> NeverReached(const Totals& totals);

/// True after as many dialogues as it takes to reach every pair: what is still missing is a finding.
bool IsLongEnough(const Totals& totals);

/// Pairs that no fault can reach alone, but several together have reached.
std::vector<std::string> ReachedTogether(const Totals& totals);

} // namespace Campaign
