// Files read and written as byte strings.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace testbench {

/// All bytes of the file, unchanged. Throws std::runtime_error naming the file if it can't be read.
std::string ReadFile(const std::filesystem::path& file);

/// The same as ReadFile, with a line feed for each line end of the system.
std::string ReadText(const std::filesystem::path& file);

/// Same as ReadFile, but returns an empty string if the file can't be read.
std::string ReadFileIfAny(const std::filesystem::path& file);

/// The lines of the file without their line feeds. Throws as ReadFile does.
std::vector<std::string> ReadLines(const std::filesystem::path& file);

/// Creates or replaces the file with these bytes. Throws std::runtime_error naming the file on failure.
void WriteFile(const std::filesystem::path& file, const std::string& bytes);

} // namespace testbench
