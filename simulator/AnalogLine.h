// The fixed-column text of one memory, read and written the way a radio does it.
#pragma once

#include "simulator/AnalogModels.h"

#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// One memory. Texts keep the width that they have in the line.
struct AnalogMemory {
    int number = 0;          ///< 1 to the model's rows
    std::string description; ///< 9 characters, blank-padded
    long rxFrequency = 0;    ///< in units of 100 Hz
    long txFrequency = 0;    ///< in units of 100 Hz; 0: receives only
    int rxTone = 64;         ///< 1 to 63 a tone, 64 none
    int txTone = 64;
    std::string rxCode = "000"; ///< three octal digits, "000" none
    std::string txCode = "000";
    std::string scan = "LOCK "; ///< 5 characters
    char mode = 'N';            ///< 'N' or 'W'

    bool operator==(const AnalogMemory&) const = default;
};

/// Characters of a memory line in the long form, its end not counted.
constexpr int LongLineLength = 76;

/// Reads a line of the long form without its carriage return, and refuses whatever a radio of `model`
/// couldn't take: numbers outside 1 to `highest`, frequencies out of band, unknown codes, shifted
/// columns. On refusal the answer is empty and `trouble` says which position is wrong and why.
std::optional<AnalogMemory> ParseLongLine(std::string_view line, const AnalogModel& model, int highest,
                                          std::string& trouble);

/// The long form, 76 characters without an end. `numberField` is put into the first three.
std::string FormatLongLine(const AnalogMemory& memory, std::string_view numberField);

/// The short form, 65 characters without an end: no receive tone and no receive code.
std::string FormatShortLine(const AnalogMemory& memory, std::string_view numberField);

/// Three decimal digits, as in the first field of a line.
std::string NumberField(int number);

/// A memory that was never written: no name, the low end of the band, no tones, locked out of scanning.
AnalogMemory EmptyMemory(const AnalogModel& model, int number);

} // namespace Simulator
