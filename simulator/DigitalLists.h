// What a digital radio tells besides its memories: hardware, configuration and debug log.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// Hardware text lines of a radio that was given none.
std::vector<std::string> DefaultHardware();
/// Reads hardware text lines. Answers false with the reason in `trouble` on failure.
bool LoadHardware(const std::string& path, std::vector<std::string>& lines, std::string& trouble);

/// Longest text of a data record.
constexpr std::size_t LongestText = 252;
/// True if the text fits a data record; if not, `trouble` says why.
bool IsRecordText(std::string_view text, std::string& trouble);

/// Configuration lines of a radio that was given none.
std::vector<std::string> DefaultConfig();
/// True if the fields 2 to 5 of a line, counted from 0 and parted by ":" ("\" takes the next character as
/// it stands), are bytes in hexadecimal that add up with 1 to a multiple of 256; if not, `trouble` says why.
bool IsGoodConfig(std::string_view line, std::string& trouble);
/// Reads configuration lines, at most 255; `lines` stay as they are if the file doesn't exist. Answers false
/// with the reason in `trouble` on failure.
bool LoadConfig(const std::string& path, std::vector<std::string>& lines, std::string& trouble);
bool SaveConfig(const std::string& path, const std::vector<std::string>& lines, std::string& trouble);

/// Debug log records, without checksums, of a radio that was given none: samples of temperature for transfer
/// protocol 2, a trace of the serial traffic for the others.
std::vector<std::string> DefaultLog(int protocol);
/// Reads debug log records: an address of four digits, a blank and data in hexadecimal digits, or a whole
/// "T1" record without its checksum. Answers false with the reason in `trouble` on failure.
bool LoadLog(const std::string& path, std::vector<std::string>& records, std::string& trouble);

/// Body of the data record that carries a text; its address is 0.
std::string TextRecord(std::string_view text);
/// Body of a debug log record. The log counts half a byte late: address and data stand one digit behind
/// their usual places, a zero before them and one after.
std::string LogRecord(std::string_view address, std::string_view data);

} // namespace Simulator
