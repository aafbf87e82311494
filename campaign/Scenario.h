// What a run transfers, made from its seed.
#pragma once

#include "campaign/Fault.h"
#include "campaign/RadioEnd.h"
#include "campaign/Sheet.h"
#include "transfer/TransferMode.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Campaign {

/// One transfer of a run.
struct Job {
    TransferMode mode = WriteChannelsMode;
    std::map<int, bool> selected; ///< rows of a write
    bool acceptsModes = true;     ///< the user's answer if the radio lacks an operating mode
    bool acceptsPurge = true;     ///< the user's answer to a purge that may cost memories
    std::vector<Fault> faults;
};

/// A target of the program and a radio that fits it.
struct Target {
    const char* name; ///< of the radio, as the simulator knows it
    const char* band;
    int radio;     ///< radio index of the program
    int bandIndex; ///< band slot
    bool digital;
    int protocol;         ///< transfer protocol of a digital radio
    const char* firmware; ///< of a digital radio
};

struct Scenario {
    uint64_t seed = 0;
    const Target* target = nullptr;
    RadioState radio;
    std::map<int, RowTexts> rows; ///< cells that differ from those of a row filled from the default row
    std::map<int, int> shadows;   ///< shadow rows with their primaries
    /// Rows without a memory that the user wants erased in a radio that the program knows.
    std::map<int, bool> erased;
    std::vector<Job> jobs;
    bool knowsRadio = false; ///< the radio's stamp is known to the program
};

/// How a failing run is made smaller: what is left of it.
struct Reduction {
    std::vector<std::vector<size_t>> faults; ///< by job: the faults that stay
    int rows = -1;                           ///< memories that stay, from the first; -1 for all
    int jobs = -1;                           ///< jobs that stay, from the first; -1 for all
};

/// Makes the scenario of a seed; the same on every machine.
Scenario MakeScenario(uint64_t seed);

/// Leaves out what the reduction leaves out.
void Reduce(Scenario& scenario, const Reduction& reduction);

/// Name of a mode, such as "write channels".
const char* NameOf(TransferMode mode);

} // namespace Campaign
