// Simulated radio that runs as a separate program.
#pragma once

#include "robot/Process.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace testbench {

/// Plays a radio for the lifetime of the object, or until the program ends by itself.
class RadioProcess : public Process {
public:
    /// Starts `program` (zelk-radio) with these arguments and waits until the radio is ready or has ended.
    /// Throws std::runtime_error if the program can't be started.
    RadioProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                 const Options& options = {});

    /// Path of the link to its port; empty if the radio didn't get ready.
    const std::string& Port() const { return m_port; }

    /// Throws std::runtime_error with the program's output if the radio didn't get ready.
    void RequireReady() const;

    /// Processor time that the program has used so far.
    std::chrono::milliseconds ProcessorTime() const;

private:
    std::string m_port;
};

} // namespace testbench
