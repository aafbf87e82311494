// The program with a script in place of its user.
#pragma once

#include <filesystem>
#include <functional>

namespace testbench {
class Robot;
}

namespace Tour {

/// Runs the program until the script has ended, and prints what failed. The program takes `home` for the
/// user's home folder: it neither sees nor touches the real one's ports and settings.
///
/// @return exit code: 0 if nothing failed, 1 otherwise
int RunScripted(const char* program, const std::filesystem::path& home,
                std::function<void(testbench::Robot&)> script);

} // namespace Tour
