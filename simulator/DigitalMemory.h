// A memory of a digital radio, and its two layouts on the wire.
#pragma once

#include "simulator/DigitalModels.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// One memory as the radio holds it, whatever the layout in which it came.
struct DigitalMemory {
    int address = 0;         ///< its place, 0 to the model's highest
    int number = 0;          ///< the number that its user sees; usually its place
    int primary = 0;         ///< number of the primary that a shadow follows; its own on others
    int flags = 0;           ///< 10 bits: 0x007 a shadow's slot + 1, 0x008 scanned, 0x010 has shadows
    int zone = 0;            ///< 0 to 31
    std::string description; ///< 8 characters, blank-padded
    char mode = 'n';
    long rxFrequency = 0; ///< Hz; 0: none
    char rxSquelch = 'x';
    int rxTone = 0; ///< 1 to 42; 0: none
    int rxCode = 0; ///< as transmitted codes count: 0 none, 1 the first
    int rxTalkGroup = 0;
    int rxNac = 0; ///< 12 bits
    long txFrequency = 0;
    char txSquelch = 'x';
    int txTone = 0;
    int txCode = 0;
    int txTalkGroup = 0;
    int txNac = 0;        ///< 16 bits are kept, 12 mean something
    long txId = 0;        ///< 0 to 9999999
    int squelchValue = 0; ///< 0 to 15

    bool operator==(const DigitalMemory&) const = default;
};

/// Memories by address.
using DigitalMemoryList = std::map<int, DigitalMemory>;

/// Numbers of a primary's shadows by slot, 0 for a free one.
using ShadowSlots = std::array<int, 7>;

/// Reads a memory record with its checksum, and refuses whatever the program has no business to send: a
/// broken frame, fields out of their range, literals that aren't there. On refusal the answer is empty and
/// `trouble` says what is wrong.
std::optional<DigitalMemory> ParseMemory(Layout layout, std::string_view line, const DigitalModel& model,
                                         std::string& trouble);

/// The record with its checksum. Empty if the layout has no number for the memory, or the memory isn't one
/// that it can hold.
std::string FormatMemory(Layout layout, const DigitalMemory& memory, const ShadowSlots& shadows,
                         const DigitalModel& model);

/// The shadows of `primary` in the list, each in the slot that its flags name.
ShadowSlots ShadowsOf(const DigitalMemory& primary, const DigitalMemoryList& memories);

// The two layouts; bodies are without their checksums, which ParseMemory has tested.
std::optional<DigitalMemory> ParseMemoryV1(std::string_view body, const DigitalModel& model,
                                           std::string& trouble);
std::optional<DigitalMemory> ParseMemoryV2(std::string_view body, const DigitalModel& model,
                                           std::string& trouble);
std::string FormatMemoryV1(const DigitalMemory& memory, const ShadowSlots& shadows,
                           const DigitalModel& model);
std::string FormatMemoryV2(const DigitalMemory& memory, const ShadowSlots& shadows);

} // namespace Simulator
