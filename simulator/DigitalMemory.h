// Memory of a digital radio, and its two layouts on the wire.
#pragma once

#include "simulator/DigitalModels.h"
#include "simulator/Result.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace Simulator {

/// One memory as the radio holds it, independent of the record layout.
struct DigitalMemory {
    int address = 0;         ///< 0 to the model's highest
    int number = 0;          ///< number shown to the user; usually equal to the address
    int primary = 0;         ///< of a shadow: number of its primary; of other memories: their own number
    int flags = 0;           ///< 10 bits: 0x007 a shadow's slot + 1, 0x008 scanned, 0x010 has shadows
    int zone = 0;            ///< 0 to 31
    std::string description; ///< 8 characters, blank-padded
    char mode = 'n';
    int64_t rxFrequency = 0; ///< Hz; 0: none
    char rxSquelch = 'x';
    int rxTone = 0; ///< 1 to 42; 0: none
    int rxCode = 0; ///< numbered like transmit codes: 0 none, 1 the first
    int rxTalkGroup = 0;
    int rxNac = 0; ///< 12 bits
    int64_t txFrequency = 0;
    char txSquelch = 'x';
    int txTone = 0;
    int txCode = 0;
    int txTalkGroup = 0;
    int txNac = 0;        ///< keeps 16 bits, only 12 have a meaning
    int64_t txId = 0;     ///< 0 to 9999999
    int squelchValue = 0; ///< 0 to 15

    bool operator==(const DigitalMemory&) const = default;
};

/// Memories by address.
using DigitalMemoryList = std::map<int, DigitalMemory>;

/// Numbers of a primary's shadows by slot; 0 marks a free slot.
using ShadowSlots = std::array<int, 7>;

/// Reads a memory record with its checksum. Refuses whatever the program must not send: a broken frame,
/// fields out of range, missing literals.
Result<DigitalMemory> ParseMemory(Layout layout, std::string_view line, const DigitalModel& model);

/// Returns the record with its checksum. Empty if the layout has no number for the memory or can't hold it.
std::string FormatMemory(Layout layout, const DigitalMemory& memory, const ShadowSlots& shadows,
                         const DigitalModel& model);

/// Returns the shadows of `primary` in the list, each in the slot from its flags.
ShadowSlots ShadowsOf(const DigitalMemory& primary, const DigitalMemoryList& memories);

// The two layouts. Bodies come without their checksums, which ParseMemory has checked.
Result<DigitalMemory> ParseMemoryV1(std::string_view body, const DigitalModel& model);
Result<DigitalMemory> ParseMemoryV2(std::string_view body, const DigitalModel& model);
std::string FormatMemoryV1(const DigitalMemory& memory, const ShadowSlots& shadows,
                           const DigitalModel& model);
std::string FormatMemoryV2(const DigitalMemory& memory, const ShadowSlots& shadows);

} // namespace Simulator
