// A simulated radio that keeps the line's pace, for transfers that are timed.
#pragma once

#include "robot/RadioProcess.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

/// Plays a radio on a port of its own from its construction to its destruction. Options are those of
/// zelk-radio. Its folder holds the port, the memories and what the caller puts there.
class PacedRadio {
public:
    PacedRadio(const std::string& model, const std::vector<std::string>& options);
    ~PacedRadio();
    PacedRadio(const PacedRadio&) = delete;
    PacedRadio& operator=(const PacedRadio&) = delete;

    std::filesystem::path Port() const { return m_process.Port(); }

    /// The folder of all radios of this process; made if it isn't there.
    static std::filesystem::path Folder();

private:
    testbench::RadioProcess m_process;
};

/// Seconds that a transfer took; one that didn't end as complete spoils the benchmark.
///
/// @param transfer runs it and answers its TransferStatus
template <class F>
double TimedTransfer(benchmark::State& state, F&& transfer) {
    constexpr int complete = 1;
    const auto begin = std::chrono::steady_clock::now();
    if (const int status = transfer(); status != complete)
        state.SkipWithError(("the transfer ended with " + std::to_string(status)).c_str());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// The prescribed time itself: such a floor is computed, not measured.
void Prescribed(benchmark::State& state, double seconds);
