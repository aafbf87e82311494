// Command line options of a digital radio.
#pragma once

#include "simulator/DigitalRadio.h"

#include <optional>
#include <string>

namespace Simulator {

/// The options as given. Empty ones take the model's or the radio's default.
struct DigitalOptions {
    std::optional<int> protocol;
    std::string firmware;
    DigitalHabits habits;
    std::string hardwareFile;
    std::string logFile; ///< of the debug log
};

// Each reads the value of one option. If it is invalid, returns false and puts a sentence into `problem`.
bool TakeProtocol(const std::string& value, DigitalOptions& options, std::string& problem);
bool TakeFirmware(const std::string& value, DigitalOptions& options, std::string& problem);
bool TakeModes(const std::string& value, DigitalOptions& options, std::string& problem);
bool TakeStamp(const std::string& value, DigitalOptions& options, std::string& problem);
bool TakeSerial(const std::string& value, DigitalOptions& options, std::string& problem);

/// Sets missing options to the model's defaults. If the model doesn't support the record layout that results
/// from protocol and firmware, returns false and puts a sentence into `problem`.
bool CompleteHabits(const DigitalModel& model, DigitalOptions& options, std::string& problem);

/// Reads all files named by the options. On failure returns false and puts the reason into `problem`.
bool LoadContents(const DigitalModel& model, const DigitalOptions& options, DigitalContents& contents,
                  std::string& problem);

/// One line of --list.
std::string ListLine(const DigitalModel& model);

} // namespace Simulator
