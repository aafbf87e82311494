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

// Each reads the value of one option. If it is invalid, returns false and puts a sentence into `trouble`.
bool TakeProtocol(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeFirmware(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeModes(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeStamp(const std::string& value, DigitalOptions& options, std::string& trouble);
bool TakeSerial(const std::string& value, DigitalOptions& options, std::string& trouble);

/// Sets missing options to the model's defaults. If the model doesn't support the record layout that results
/// from protocol and firmware, returns false and puts a sentence into `trouble`.
bool CompleteHabits(const DigitalModel& model, DigitalOptions& options, std::string& trouble);

/// Reads all files named by the options. On failure returns false and puts the reason into `trouble`.
bool LoadContents(const DigitalModel& model, const DigitalOptions& options, DigitalContents& contents,
                  std::string& trouble);

/// One line of --list.
std::string ListLine(const DigitalModel& model);

} // namespace Simulator
