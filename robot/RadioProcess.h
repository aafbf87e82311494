// A simulated radio that runs as a program of its own.
#pragma once

#include "robot/Process.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace testbench {

/// Plays a radio until the end of the object, or until the program ends by itself.
class RadioProcess : public Process {
public:
    /// Starts `program` (zelk-radio) with these arguments, and waits until the radio is ready or has ended.
    /// Throws std::runtime_error if the program can't be started.
    RadioProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                 const Options& options = {});

    /// The link to its port; empty if the radio ended instead of getting ready.
    const std::string& Port() const { return m_port; }

    /// Throws std::runtime_error with the program's output if the radio didn't get ready.
    void RequireReady() const;

    /// Processor time that it has used.
    std::chrono::milliseconds ProcessorTime() const;

private:
    std::string m_port;
};

} // namespace testbench
