#include "simulator/DigitalOptions.h"

#include "simulator/DigitalMemoryFile.h"

#include <cstdio>

namespace Simulator {

namespace {

std::string IsNo(const std::string& value, const char* what) {
    return "\"" + value + "\" is no " + what;
}

} // namespace

Failure TakeProtocol(const std::string& value, DigitalOptions& options) {
    if (value != "0" && value != "1" && value != "2")
        return IsNo(value, "transfer protocol: say 0, 1 or 2");
    options.protocol = value[0] - '0';
    return {};
}

Failure TakeFirmware(const std::string& value, DigitalOptions& options) {
    if (value.size() != 6 || !IsHex(value))
        return IsNo(value, "firmware version of six hexadecimal digits, such as 020103");
    options.firmware = value;
    return {};
}

Failure TakeModes(const std::string& value, DigitalOptions& options) {
    if (value.size() > 2 || HexValue(value) < 0)
        return IsNo(value, "byte of operating modes in hexadecimal, such as 70");
    options.habits.modes = static_cast<int>(HexValue(value));
    return {};
}

Failure TakeStamp(const std::string& value, DigitalOptions& options) {
    if (value.size() != 14 || value.find_first_not_of("0123456789") != std::string::npos)
        return IsNo(value, "stamp of 14 digits");
    options.habits.stamp = value;
    return {};
}

Failure TakeSerial(const std::string& value, DigitalOptions& options) {
    if (value.empty() || CheckRecordText(value))
        return IsNo(value, "serial number of 1 to 252 printable characters");
    options.habits.serial = value;
    return {};
}

Failure CompleteHabits(const DigitalModel& model, DigitalOptions& options) {
    options.habits.protocol = options.protocol.value_or(model.protocol);
    options.habits.firmware = options.firmware.empty() ? std::string(model.firmware) : options.firmware;
    const Layout layout = LayoutOf(options.habits.protocol, options.habits.firmware);
    if (layout == Layout::V1 ? model.knowsV1 : model.knowsV2)
        return {};
    return std::string(model.name) + " knows no " + (layout == Layout::V1 ? "V1" : "V2") +
           " records, to which protocol " + std::to_string(options.habits.protocol) + " with firmware " +
           options.habits.firmware + " leads";
}

Failure LoadContents(const DigitalModel& model, const DigitalOptions& options, DigitalContents& contents) {
    const DigitalHabits& habits = options.habits;
    Failure failure;
    if (!habits.memoryFile.empty())
        failure = LoadDigitalMemories(habits.memoryFile, model, contents.memories);
    if (!failure && !habits.configFile.empty())
        failure = LoadConfig(habits.configFile, contents.config);
    if (!failure && !options.hardwareFile.empty())
        failure = LoadHardware(options.hardwareFile, contents.hardware);
    contents.log = DefaultLog(habits.protocol);
    if (!failure && !options.logFile.empty())
        failure = LoadLog(options.logFile, contents.log);
    return failure;
}

std::string ListLine(const DigitalModel& model) {
    const bool guards = model.highest % 10 == 2;
    char line[160];
    std::snprintf(line, sizeof line, "%-12s %-11s %3d memories%s, digital, %s records, protocol %d\n",
                  std::string(model.name).c_str(), std::string(model.band).c_str(), model.highest,
                  guards ? ", 2 of them guards" : "",
                  model.knowsV1 && model.knowsV2 ? "V1 and V2"
                  : model.knowsV2                ? "V2"
                                                 : "V1",
                  model.protocol);
    return line;
}

} // namespace Simulator
