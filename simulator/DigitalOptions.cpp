#include "simulator/DigitalOptions.h"

#include "simulator/DigitalMemoryFile.h"

#include <cstdio>

namespace Simulator {

namespace {

bool Refuse(const std::string& value, const char* what, std::string& problem) {
    problem = "\"" + value + "\" is no " + what;
    return false;
}

} // namespace

bool TakeProtocol(const std::string& value, DigitalOptions& options, std::string& problem) {
    if (value != "0" && value != "1" && value != "2")
        return Refuse(value, "transfer protocol: say 0, 1 or 2", problem);
    options.protocol = value[0] - '0';
    return true;
}

bool TakeFirmware(const std::string& value, DigitalOptions& options, std::string& problem) {
    if (value.size() != 6 || !IsHex(value))
        return Refuse(value, "firmware version of six hexadecimal digits, such as 020103", problem);
    options.firmware = value;
    return true;
}

bool TakeModes(const std::string& value, DigitalOptions& options, std::string& problem) {
    if (value.size() > 2 || HexValue(value) < 0)
        return Refuse(value, "byte of operating modes in hexadecimal, such as 70", problem);
    options.habits.modes = static_cast<int>(HexValue(value));
    return true;
}

bool TakeStamp(const std::string& value, DigitalOptions& options, std::string& problem) {
    if (value.size() != 14 || value.find_first_not_of("0123456789") != std::string::npos)
        return Refuse(value, "stamp of 14 digits", problem);
    options.habits.stamp = value;
    return true;
}

bool TakeSerial(const std::string& value, DigitalOptions& options, std::string& problem) {
    std::string why;
    if (value.empty() || !IsRecordText(value, why))
        return Refuse(value, "serial number of 1 to 252 printable characters", problem);
    options.habits.serial = value;
    return true;
}

bool CompleteHabits(const DigitalModel& model, DigitalOptions& options, std::string& problem) {
    options.habits.protocol = options.protocol.value_or(model.protocol);
    options.habits.firmware = options.firmware.empty() ? std::string(model.firmware) : options.firmware;
    const Layout layout = LayoutOf(options.habits.protocol, options.habits.firmware);
    if (layout == Layout::V1 ? model.knowsV1 : model.knowsV2)
        return true;
    problem = std::string(model.name) + " knows no " + (layout == Layout::V1 ? "V1" : "V2") +
              " records, to which protocol " + std::to_string(options.habits.protocol) + " with firmware " +
              options.habits.firmware + " leads";
    return false;
}

bool LoadContents(const DigitalModel& model, const DigitalOptions& options, DigitalContents& contents,
                  std::string& problem) {
    const DigitalHabits& habits = options.habits;
    if (!habits.memoryFile.empty() &&
        !LoadDigitalMemories(habits.memoryFile, model, contents.memories, problem))
        return false;
    if (!habits.configFile.empty() && !LoadConfig(habits.configFile, contents.config, problem))
        return false;
    if (!options.hardwareFile.empty() && !LoadHardware(options.hardwareFile, contents.hardware, problem))
        return false;
    contents.log = DefaultLog(habits.protocol);
    return options.logFile.empty() || LoadLog(options.logFile, contents.log, problem);
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
