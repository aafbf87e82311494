// Analog radios that can be simulated, with the facts of the radio's side.
#pragma once

#include "simulator/Result.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace Simulator {

/// Tuning range in whole MHz, both ends included. A range of 0 to 0 is an unused slot.
struct FrequencyRange {
    int low;
    int high;
};

/// Key to press on the radio before it sends its memories.
enum class StartKey { None, Enter, Home };

/// One band of one radio, the unit of simulation.
struct AnalogModel {
    std::string_view name;
    std::string_view band;
    std::array<FrequencyRange, 3> ranges;
    int rows;          ///< memories 1 to rows, guards included
    int openingNumber; ///< required number of the "rt" opening; 0: the radio has no such opening
    StartKey key;
    bool writable; ///< false: the radio can only be read
};

/// Every model and band, in the order of the product list.
std::span<const AnalogModel> AnalogModels();

/// Finds the model by its exact name and band. An empty `band` selects the only band of a single-band
/// radio.
Result<const AnalogModel*> FindAnalogModel(std::string_view name, std::string_view band);

/// True if the last two memories are guards: such models have a number of rows that ends in 2.
bool HasGuards(const AnalogModel& model);

/// Number of memories that the openings without a count can reach: at most 202.
int ShortOpeningReach(const AnalogModel& model);

} // namespace Simulator
