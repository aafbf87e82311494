// The lines of the digital radios: type, count, address, data and checksum in upper-case hexadecimal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// What a line holds between its frame.
struct HexRecord {
    enum class Type { Hello = 0, Data = 1, Message = 2, End = 9 };

    Type type;
    int address = 0;                ///< 16 bits
    std::vector<std::uint8_t> data; ///< at least one byte, except in an end record
};

/// Longest line that a count of one byte allows, its end not counted.
constexpr std::size_t LongestRecord = 4 + 2 * 255;

/// Reads a line without its carriage return and refuses everything that isn't exactly in shape: first
/// letter, type, upper case, count against the length, checksum. On refusal `trouble` says why.
std::optional<HexRecord> ParseRecord(std::string_view line, std::string& trouble);

/// The line, with count and checksum, without an end.
std::string FormatRecord(const HexRecord& record);

/// The body (a line without its checksum) with its checksum behind it.
std::string WithChecksum(std::string_view body);

/// The last `digits` digits of the value in upper-case hexadecimal.
std::string Hex(unsigned long value, int digits);

/// True for a text of upper-case hexadecimal digits only, the empty one among them.
bool IsHex(std::string_view text);

/// The value of at most eight upper-case hexadecimal digits, or -1 for anything else and an empty text.
long HexValue(std::string_view text);

} // namespace Simulator
