// Runs the program with a script in place of its user.
#pragma once

#include <filesystem>
#include <functional>

namespace testbench {
class Robot;
}

namespace Tour {

/// Runs the program until the script has ended, and prints failures. The program uses `home` as the user's
/// home folder, so it neither sees nor changes the ports and settings in the real one.
///
/// @return exit code: 0 if nothing failed, 1 otherwise
int RunScripted(const char* program, const std::filesystem::path& home,
                std::function<void(testbench::Robot&)> script);

} // namespace Tour
