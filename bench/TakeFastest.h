// Timing of short work in many rounds.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

/// Runs prepare and work alternately and reports the fastest work to the benchmark.
template <class Prepare, class Work>
void TakeFastest(benchmark::State& state, Prepare prepare, Work work) {
    using Seconds = std::chrono::duration<double>;
    constexpr int Rounds = 16;
    for ([[maybe_unused]] auto _ : state) {
        Seconds fastest = Seconds::max();
        for (int round = 0; round < Rounds; ++round) {
            prepare();
            const auto begin = std::chrono::steady_clock::now();
            work();
            fastest = std::min<Seconds>(fastest, std::chrono::steady_clock::now() - begin);
        }
        state.SetIterationTime(fastest.count());
    }
}
