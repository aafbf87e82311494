// Command line of zelk-radio.
#pragma once

#include "simulator/AnalogRadio.h"
#include "simulator/DigitalOptions.h"
#include "simulator/FaultPlan.h"
#include "simulator/Result.h"

#include <chrono>
#include <string>
#include <vector>

namespace Simulator {

struct Options {
    enum class Task { Play, List, Help };

    Task task = Task::Play;
    const AnalogModel* model = nullptr;         ///< set for an analog radio
    const DigitalModel* digitalModel = nullptr; ///< set for a digital radio
    AnalogHabits habits;
    DigitalOptions digital;
    std::string memoryFile;
    std::vector<Fault> faults;
    std::chrono::milliseconds late{5500};
    bool pace = false;
    bool once = false;
    std::string port;        ///< empty: a simulated one
    std::string portsFolder; ///< of a simulated port; empty: the default folder
    std::string name;        ///< of the link to a simulated port; the model's by default
    std::string logFile;
    std::string replyTimesFile;
};

/// Reads the arguments after the program's name. A value is the argument after its option, or follows "=".
/// Options for the other kind of radio have no effect.
[[nodiscard]] Failure ParseOptions(const std::vector<std::string>& arguments, Options& options);

/// The text of --help.
std::string HelpText();
/// The text of --list: one model and band per line.
std::string ListText();

} // namespace Simulator
