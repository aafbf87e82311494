// Command line options of a digital radio.
#pragma once

#include "simulator/DigitalRadio.h"
#include "simulator/Result.h"

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

// Each reads the value of one option.
[[nodiscard]] Failure TakeProtocol(const std::string& value, DigitalOptions& options);
[[nodiscard]] Failure TakeFirmware(const std::string& value, DigitalOptions& options);
[[nodiscard]] Failure TakeModes(const std::string& value, DigitalOptions& options);
[[nodiscard]] Failure TakeStamp(const std::string& value, DigitalOptions& options);
[[nodiscard]] Failure TakeSerial(const std::string& value, DigitalOptions& options);

/// Sets missing options to the model's defaults. Fails if the model doesn't support the record layout that
/// results from protocol and firmware.
[[nodiscard]] Failure CompleteHabits(const DigitalModel& model, DigitalOptions& options);

/// Reads all files named by the options.
[[nodiscard]] Failure LoadContents(const DigitalModel& model, const DigitalOptions& options,
                                   DigitalContents& contents);

/// One line of --list.
std::string ListLine(const DigitalModel& model);

} // namespace Simulator
