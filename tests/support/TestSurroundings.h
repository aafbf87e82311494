// What a program of window tests needs of the system around it.
#pragma once

#include <filesystem>

namespace testbench {

/// True if there is a display for windows.
bool HasDisplay();

/// Keeps the user's files and settings out of the tests, and makes the tests the same on every machine.
/// `home` is an empty folder. Call before the toolkit starts.
void KeepUsersFilesOut(const std::filesystem::path& home);

/// Ends the programs that tests have started, before an abort.
void EndChildren();

} // namespace testbench
