// Lines of the digital radios: type, count, address, data and checksum in upper-case hexadecimal.
#pragma once

#include "simulator/Result.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// Content of a line without its frame.
struct HexRecord {
    enum class Type { Hello = 0, Data = 1, Message = 2, End = 9 };

    Type type;
    int address = 0;           ///< 16 bits
    std::vector<uint8_t> data; ///< at least one byte, except in an end record
};

/// Greatest length that a count of one byte allows, without the line end.
constexpr size_t LongestRecord = 4 + 2 * 255;

/// Reads a line without its carriage return. Checks first letter, type, upper case, count against the length,
/// and checksum.
Result<HexRecord> ParseRecord(std::string_view line);

/// Returns the line with count and checksum, without a line end.
std::string FormatRecord(const HexRecord& record);

/// Returns the body (a line without its checksum) followed by its checksum.
std::string WithChecksum(std::string_view body);

/// Returns the last `digits` digits of the value in upper-case hexadecimal.
std::string Hex(uint64_t value, int digits);

/// True if the text contains only upper-case hexadecimal digits or is empty.
bool IsHex(std::string_view text);

/// Returns the value of one to eight upper-case hexadecimal digits, or -1 for any other text.
int64_t HexValue(std::string_view text);

} // namespace Simulator
