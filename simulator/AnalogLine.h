// Fixed-column text of one memory, read and written as a radio does.
#pragma once

#include "simulator/AnalogModels.h"
#include "simulator/Result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Simulator {

/// One memory. Texts have the same width as in the line.
struct AnalogMemory {
    int number = 0;          ///< 1 to the model's rows
    std::string description; ///< 9 characters, blank-padded
    int64_t rxFrequency = 0; ///< in units of 100 Hz
    int64_t txFrequency = 0; ///< in units of 100 Hz; 0: receives only
    int rxTone = 64;         ///< 1 to 63: a tone; 64: none
    int txTone = 64;
    std::string rxCode = "000"; ///< three octal digits; "000": none
    std::string txCode = "000";
    std::string scan = "LOCK "; ///< 5 characters
    char mode = 'N';            ///< 'N' or 'W'

    bool operator==(const AnalogMemory&) const = default;
};

/// Length of a memory line in the long form, without its end.
constexpr int LongLineLength = 76;

/// Reads a line of the long form, without its carriage return. Refuses whatever a radio of `model` couldn't
/// take: numbers outside 1 to `highest`, frequencies out of band, unknown codes, shifted columns. The reason
/// names the wrong position.
Result<AnalogMemory> ParseLongLine(std::string_view line, const AnalogModel& model, int highest);

/// Returns the long form, 76 characters without a line end. `numberField` becomes the first three.
std::string FormatLongLine(const AnalogMemory& memory, std::string_view numberField);

/// Returns the short form, 65 characters without a line end: no receive tone and no receive code.
std::string FormatShortLine(const AnalogMemory& memory, std::string_view numberField);

/// The number as three decimal digits, as in the first field of a line.
std::string NumberField(int number);

/// A memory that was never written: no description, the low end of the band, no tones, no scanning.
AnalogMemory EmptyMemory(const AnalogModel& model, int number);

} // namespace Simulator
