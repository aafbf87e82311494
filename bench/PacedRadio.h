// A simulated radio that runs at line speed, for timed transfers.
#pragma once

#include "robot/RadioProcess.h"

#include <filesystem>
#include <string>
#include <vector>

/// Runs a radio on a port of its own from construction to destruction, in a process of its own. Options are
/// those of zelk-radio.
class PacedRadio {
public:
    /// @param memories file with the radio's memories, which it also keeps there; may be missing
    PacedRadio(const std::string& model, const std::filesystem::path& memories,
               const std::vector<std::string>& options);
    PacedRadio(const PacedRadio&) = delete;
    PacedRadio& operator=(const PacedRadio&) = delete;

    std::filesystem::path Port() const { return m_process.Port(); }

    /// Returns how long the program took to reply to each answer of the radio so far, in microseconds: from
    /// the answer's last byte to the first byte of the next line, as seen by the radio.
    std::vector<double> ReplyTimes() const;

    /// Returns the folder of all radios of this process and of their files; creates it if missing. It is
    /// removed when the process ends.
    static std::filesystem::path Folder();

private:
    testbench::RadioProcess m_process;
};
