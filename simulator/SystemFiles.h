// Files by names in UTF-8. One source file for each operating system.
#pragma once

#include <cstdio>
#include <string>

namespace Simulator {

/// Opens a file as std::fopen does.
std::FILE* OpenFile(const std::string& name, const char* mode);
/// Writes what the file holds to the disk. Returns false on failure.
[[nodiscard]] bool SyncFile(std::FILE* file);
/// Gives a file another name, and replaces a file of that name in one step. Returns false on failure.
[[nodiscard]] bool RenameFile(const std::string& from, const std::string& to);
void RemoveFile(const std::string& name);

} // namespace Simulator
