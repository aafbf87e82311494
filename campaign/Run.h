// Runs of scenarios: their verdicts, their smallest form, and what they have covered.
#pragma once

#include "campaign/Checks.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace Campaign {

/// How often a kind of fault has happened in a state of a driver: by driver, state and kind.
using Coverage = std::map<std::tuple<bool, std::string, FaultKind>, int64_t>;

/// Result of one seed.
struct Verdict {
    std::vector<std::string> broken; ///< sentences; empty if all conditions hold
    int job = -1;                    ///< the transfer that broke them, from 0
    int dialogues = 0;               ///< transfers with and without faults
};

/// Runs scenarios, one after the other, on pages that it keeps.
class Runner {
public:
    /// Runs all transfers of the scenario of this seed, or those that the reduction leaves. Stops at the
    /// first broken condition.
    /// @param narrator is told the faulty transfers, line by line; empty for nobody
    Verdict Run(uint64_t seed, const Reduction& reduction = {}, const Narrator& narrator = {});

    /// Returns the smallest reduction that it finds with which the seed still breaks a condition.
    Reduction Shrink(uint64_t seed);

    const Coverage& Covered() const { return m_coverage; }

private:
    Sheet& SheetOf(const Target& target);

    std::unique_ptr<Sheet> m_sheet;
    Coverage m_coverage;
};

/// Returns the smallest reduction of the scenario that it finds with which `fails` is still true.
Reduction SmallestReduction(const Scenario& scenario, const std::function<bool(const Reduction&)>& fails);

/// The reduction as arguments of `zelk-campaign replay`.
std::string ArgumentsOf(const Reduction& reduction);

/// Reads what ArgumentsOf wrote; throws std::runtime_error if it is something else.
Reduction ReadReduction(const std::vector<std::string>& arguments);

/// What the scenario transfers and which faults it has, for a reader.
std::string Describe(const Scenario& scenario);

} // namespace Campaign
