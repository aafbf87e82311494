// What the command line says about a digital radio.
#pragma once

#include "simulator/DigitalRadio.h"

#include <optional>
#include <string>

namespace Simulator {

/// The options as they were given; what is empty takes the model's or the radio's default.
struct DigitalOptions {
    std::optional<int> protocol;
    std::string firmware;
    DigitalHabits habits;
    std::string hardwareFile;
    std::string logFile; ///< of the debug log
};

// Each reads the value of one option and answers false with a sentence in `trouble` if it can't be used.
bool TakeProtocol(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeFirmware(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeModes(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeStamp(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeSerial(const std::string& value, DigitalOptions& options, std::string& trouble);

/// Puts the model's defaults where nothing was said. Answers false with a sentence in `trouble` if the model
/// doesn't know the record layout that protocol and firmware lead to.
bool CompleteHabits(const DigitalModel& model, DigitalOptions& options, std::string& trouble);

/// Reads all files that the options name. Answers false with the reason in `trouble` on failure.
bool LoadContents(const DigitalModel& model, const DigitalOptions& options, DigitalContents& contents,
                  std::string& trouble);

/// One line of --list.
std::string ListLine(const DigitalModel& model);

} // namespace Simulator
