// The command line of zelk-radio.
#pragma once

#include "simulator/AnalogRadio.h"
#include "simulator/DigitalOptions.h"
#include "simulator/FaultPlan.h"

#include <chrono>
#include <string>
#include <vector>

namespace Simulator {

struct Options {
    enum class Task { Play, List, Help };

    Task task = Task::Play;
    const AnalogModel* model = nullptr;         ///< the radio if it is an analog one
    const DigitalModel* digitalModel = nullptr; ///< the radio if it is a digital one
    AnalogHabits habits;
    DigitalOptions digital;
    std::string memoryFile;
    std::vector<Fault> faults;
    std::chrono::milliseconds late{5500};
    bool pace = false;
    bool once = false;
    std::string portsFolder; ///< empty: the program's own
    std::string name;        ///< of the link; the model's by default
    std::string logFile;
};

/// Reads the arguments behind the program's name; a value follows its option or stands behind "=". Options
/// that concern only the other kind of radio change nothing.
/// Answers false with a sentence in `trouble` when they can't be understood.
bool ParseOptions(const std::vector<std::string>& arguments, Options& options, std::string& trouble);

/// The text of --help.
std::string HelpText();
/// The text of --list: one model and band a line.
std::string ListText();

} // namespace Simulator
