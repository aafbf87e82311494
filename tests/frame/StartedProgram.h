// The program as a desktop starts it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace testbench {

/// Runs a program for the lifetime of the object, without its console.
class StartedProgram {
public:
    /// Starts the program with these arguments, in UTF-8, in a working folder; empty: that of this process.
    /// Throws std::runtime_error if it can't be started.
    StartedProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                   const std::filesystem::path& folder);
    /// Ends the program if it still runs.
    ~StartedProgram();
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    bool IsRunning();

private:
    class Started;
    std::unique_ptr<Started> m_started;
};

} // namespace testbench
