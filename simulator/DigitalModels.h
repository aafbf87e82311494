// The digital radios that can be played, as seen from the radio's side.
#pragma once

#include "simulator/AnalogModels.h"

#include <span>
#include <string>
#include <string_view>

namespace Simulator {

/// How a memory is laid out in its record.
enum class Layout { V1 = 1, V2 = 2 };

/// One digital radio.
struct DigitalModel {
    std::string_view name;
    std::string_view band;
    bool bandNeeded;                        ///< the name alone is that of another radio
    std::span<const FrequencyRange> ranges; ///< tuning ranges in whole MHz, both ends included
    int highest;                            ///< highest memory; memory 0 holds the defaults of new ones
    bool knowsV1;
    bool knowsV2;
    bool remoteGuards;      ///< in V1 the guards travel as 231 and 232, but stand at the end of a longer list
    std::string_view modes; ///< letters of the operating mode
    std::string_view rxSquelch; ///< letters of the receive squelch
    std::string_view txSquelch; ///< letters of the transmit squelch
    int highestCode;            ///< highest transmit code value on the wire
    int protocol;               ///< transfer protocol of a radio with default options
    std::string_view firmware;  ///< firmware version of a radio with default options
};

/// Memory numbers in V1, guards 231 and 232 included.
constexpr int HighestV1 = 232;
constexpr int LastOrdinaryV1 = 230;

std::span<const DigitalModel> DigitalModels();

/// The model of that name and band, both compared exactly, or nullptr. An empty `band` stands for the only
/// band of a radio whose name isn't shared with others.
const DigitalModel* FindDigitalModel(std::string_view name, std::string_view band);

/// The record layout of a radio with that transfer protocol (0 to 2) and firmware version: V2 has come with
/// major version 02 and needs protocol 2.
Layout LayoutOf(int protocol, std::string_view firmware);

} // namespace Simulator
