// Lists that a digital radio sends besides its memories: hardware, configuration and debug log.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// Default hardware text lines.
std::vector<std::string> DefaultHardware();
/// Reads hardware text lines. On failure returns false and puts the reason into `problem`.
bool LoadHardware(const std::string& path, std::vector<std::string>& lines, std::string& problem);

/// Greatest length of a text in a data record.
constexpr size_t LongestText = 252;
/// True if the text fits into a data record. If not, puts the reason into `problem`.
bool IsRecordText(std::string_view text, std::string& problem);

/// Default configuration lines.
std::vector<std::string> DefaultConfig();
/// True if fields 2 to 5 of the line are bytes in hexadecimal whose sum plus 1 is a multiple of 256. Fields
/// count from 0 and are separated by ":"; "\" escapes the next character. If not, puts the reason into
/// `problem`.
bool IsGoodConfig(std::string_view line, std::string& problem);
/// Reads configuration lines, at most 255. Leaves `lines` unchanged if the file doesn't exist or has no
/// lines. On failure returns false and puts the reason into `problem`.
bool LoadConfig(const std::string& path, std::vector<std::string>& lines, std::string& problem);
bool SaveConfig(const std::string& path, const std::vector<std::string>& lines, std::string& problem);

/// Default debug log records, without checksums: temperature samples for transfer protocol 2, a trace of the
/// serial traffic for the others.
std::vector<std::string> DefaultLog(int protocol);
/// Reads debug log records: either an address of four digits, a blank and data, all in hexadecimal digits, or
/// a complete "T1" record without its checksum. On failure returns false and puts the reason into `problem`.
bool LoadLog(const std::string& path, std::vector<std::string>& records, std::string& problem);

/// Body of the data record for a text, with address 0.
std::string TextRecord(std::string_view text);
/// Body of a debug log record. The log is shifted by half a byte: address and data are one digit after their
/// usual positions, with one zero before them and one after.
std::string LogRecord(std::string_view address, std::string_view data);

} // namespace Simulator
