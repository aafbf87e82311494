// What a write must send to a radio and leave in it, by the rules of the protocols.
#pragma once

#include "campaign/Dialogue.h"

#include <set>
#include <string>
#include <vector>

namespace Campaign {

/// A write that meets no fault, planned from what page and radio hold before it.
struct WritePlan {
    bool hasData = false;          ///< there are rows to be sent or erased
    bool asksModes = false;        ///< the user is asked about operating modes that the radio lacks
    bool purges = false;           ///< the radio erases its memories first
    bool asksPurge = false;        ///< the user is asked before that
    std::vector<int> sent;         ///< rows, in the order in which their records go out
    std::set<int> erased;          ///< rows that are erased one by one
    RadioState radio;              ///< after the write
    std::set<int> heldRows;        ///< that the program knows to be in the radio then
    std::set<int> reached;         ///< memory rows that the radio has acknowledged
    std::vector<std::string> data; ///< beginnings of the lines of a digital write behind its opening
};

WritePlan PlanOf(const Scenario& scenario, const Job& job, const World& before);

} // namespace Campaign
