// What must hold after every transfer, whatever has happened in it.
#pragma once

#include "campaign/Dialogue.h"

#include <string>
#include <vector>

namespace Campaign {

/// Returns a sentence for each broken condition, none if all hold.
///
/// @param before the world before the transfer
/// @param clean  the same transfer without faults
/// @param faulty the transfer itself
std::vector<std::string> BrokenConditions(const Scenario& scenario, const Job& job, const World& before,
                                          const Outcome& clean, const Outcome& faulty);

/// The same for the transfer without faults: what the user asked for has happened.
std::vector<std::string> BrokenConditions(const Scenario& scenario, const Job& job, const World& before,
                                          const Outcome& clean);

} // namespace Campaign
