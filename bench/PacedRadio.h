// A simulated radio that runs at line speed, for timed transfers.
#pragma once

#include "robot/RadioProcess.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

/// Runs a radio on a port of its own from construction to destruction. Options are those of zelk-radio. Its
/// folder holds the port, the memories and files of the caller.
class PacedRadio {
public:
    PacedRadio(const std::string& model, const std::vector<std::string>& options);
    ~PacedRadio();
    PacedRadio(const PacedRadio&) = delete;
    PacedRadio& operator=(const PacedRadio&) = delete;

    std::filesystem::path Port() const { return m_process.Port(); }

    /// Returns the folder of all radios of this process; creates it if missing.
    static std::filesystem::path Folder();

private:
    testbench::RadioProcess m_process;
};

/// Returns the seconds that a transfer took. Any status except complete fails the benchmark.
///
/// @param transfer runs the transfer and returns its TransferStatus
template <class F>
double TimedTransfer(benchmark::State& state, F&& transfer) {
    constexpr int complete = 1;
    const auto begin = std::chrono::steady_clock::now();
    if (const int status = transfer(); status != complete)
        state.SkipWithError(("the transfer ended with " + std::to_string(status)).c_str());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// Sets the prescribed time itself: such a floor is computed, not measured.
void Prescribed(benchmark::State& state, double seconds);
