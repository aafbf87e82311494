// The analog radios that can be played, as seen from the radio's side.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace Simulator {

/// Tuning range in whole MHz; both ends belong to it. A range of 0 to 0 is an unused slot.
struct FrequencyRange {
    int low;
    int high;
};

/// How the radio is made to send once it has been asked for its memories.
enum class StartKey { None, Enter, Home };

/// One band of one radio: what is played at a time.
struct AnalogModel {
    std::string_view name;
    std::string_view band;
    std::array<FrequencyRange, 3> ranges;
    int rows;          ///< memories 1 to rows, guards included
    int openingNumber; ///< number that the "rt" opening must carry; 0: no such opening
    StartKey key;
    bool writable; ///< false: the radio can only be read
};

/// Every model and band, in the order of the product list.
std::span<const AnalogModel> AnalogModels();

/// The model of that name and band, both compared exactly. An empty `band` stands for the only band of
/// a single-band radio. Answers nullptr and puts a sentence into `trouble` when nothing fits.
const AnalogModel* FindAnalogModel(std::string_view name, std::string_view band, std::string& trouble);

/// A count that ends in 2 means that the last two memories are the guards.
bool HasGuards(const AnalogModel& model);

/// Memories that the openings without a count reach: at most 202.
int ShortOpeningReach(const AnalogModel& model);

} // namespace Simulator
