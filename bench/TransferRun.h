// Measuring of transfers with a radio that runs at line speed.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

class PacedRadio;
class TransferClock;

/// What a transfer is measured with.
enum class Conditions {
    Program,   ///< the program as it is
    BusyCores, ///< the same while a process of its own keeps each core busy
    Spinning,  ///< the drivers with waits that poll in a loop, which reply as fast as a driver can
};

/// Runs a transfer and reports its time, this process's share of a core, and how fast it replied to the
/// radio. Any status except complete fails the benchmark.
///
/// @param replies  number of replies to answers of the radio at the end of the transfer that have no
/// prescribed
///                 pause; 0 for none
/// @param transfer runs the transfer with a clock and returns its TransferStatus
void MeasureTransfer(benchmark::State& state, const PacedRadio& radio, Conditions conditions, int replies,
                     const std::function<int(TransferClock&)>& transfer);

/// Registers a transfer under all conditions, against its prescribed time.
///
/// @param floor seconds that the bytes and the prescribed pauses take
void RegisterTransfer(const std::string& name, double floor,
                      const std::function<void(benchmark::State&, Conditions)>& run);

/// Child process of BusyCores: keeps a core busy until it is ended, or its parent has gone.
[[noreturn]] void KeepBusy();
