// Digital radios that can be simulated, with the facts of the radio's side.
#pragma once

#include "simulator/AnalogModels.h"

#include <span>
#include <string>
#include <string_view>

namespace Simulator {

/// Layout of a memory record.
enum class Layout { V1 = 1, V2 = 2 };

/// One digital radio.
struct DigitalModel {
    std::string_view name;
    std::string_view band;
    bool bandNeeded;                        ///< the name alone selects another radio
    std::span<const FrequencyRange> ranges; ///< tuning ranges in whole MHz, both ends included
    int highest;                            ///< highest memory; memory 0 holds the defaults of new memories
    bool knowsV1;
    bool knowsV2;
    bool remoteGuards;          ///< V1 sends the guards as 231 and 232; they are at the end of a longer list
    std::string_view modes;     ///< letters of the operating mode
    std::string_view rxSquelch; ///< letters of the receive squelch
    std::string_view txSquelch; ///< letters of the transmit squelch
    int highestCode;            ///< highest transmit code value on the wire
    int protocol;               ///< transfer protocol of a radio with default options
    std::string_view firmware;  ///< firmware version of a radio with default options
};

/// Highest memory numbers in V1, with and without guards 231 and 232.
constexpr int HighestV1 = 232;
constexpr int LastOrdinaryV1 = 230;

std::span<const DigitalModel> DigitalModels();

/// Finds the model by its exact name and band; nullptr if none matches. An empty `band` selects the only band
/// of a radio whose name is unique.
const DigitalModel* FindDigitalModel(std::string_view name, std::string_view band);

/// Returns the record layout of a radio with this transfer protocol (0 to 2) and firmware version. V2 needs
/// protocol 2 and major version 02.
Layout LayoutOf(int protocol, std::string_view firmware);

} // namespace Simulator
