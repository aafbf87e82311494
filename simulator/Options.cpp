#include "simulator/Options.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <functional>

namespace Simulator {

namespace {

using Taker = std::function<Failure(Options&, const std::string& value)>;

enum class Value { None, Needed, Optional };

struct Option {
    std::string_view name;
    Value value;
    std::string_view valueName;
    std::string_view help;
    Taker take;
};

Failure TakeMilliseconds(const std::string& text, std::chrono::milliseconds& out) {
    int value = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 0)
        return "\"" + text + "\" is no number of milliseconds";
    out = std::chrono::milliseconds(value);
    return {};
}

Failure TakeModel(Options& options, const std::string& value) {
    const size_t colon = value.find(':');
    const std::string band = colon == std::string::npos ? "" : value.substr(colon + 1);
    const std::string name = value.substr(0, colon);
    options.model = nullptr;
    options.digitalModel = FindDigitalModel(name, band);
    if (options.digitalModel)
        return {};
    const auto found = FindAnalogModel(name, band);
    if (found) {
        options.model = *found;
        return {};
    }
    std::string reason = found.Reason();
    for (const DigitalModel& model : DigitalModels())
        if (model.name == name && model.bandNeeded)
            reason += ", or \"" + std::string(model.band) + "\"";
    return reason;
}

Failure TakeName(Options& options, const std::string& value) {
    if (value.empty() || value[0] == '.' || value.find('/') != std::string::npos)
        return "\"" + value + "\" can't be the name of a link";
    options.name = value;
    return {};
}

Failure TakePort(Options& options, const std::string& value) {
    if (value.empty())
        return "--port needs the name of a serial port";
    options.port = value;
    return {};
}

Failure TakeParity(Options& options, const std::string& value) {
    if (value.empty() || value == "all")
        options.habits.parity = Parity::All;
    else if (value == "text")
        options.habits.parity = Parity::Text;
    else if (value == "bytes")
        options.habits.parity = Parity::Bytes;
    else
        return "--parity is \"text\", \"all\" or \"bytes\", not \"" + value + "\"";
    return {};
}

Failure TakeFault(Options& options, const std::string& value) {
    const auto fault = ParseFault(value);
    if (!fault)
        return fault.Reason();
    options.faults.push_back(*fault);
    return {};
}

/// An option of the digital radios.
Taker Digital(Failure (*take)(const std::string&, DigitalOptions&)) {
    return [take](Options& options, const std::string& value) { return take(value, options.digital); };
}

/// An option that sets one member to true.
template <typename Member>
Taker Switch(Member member) {
    return [member](Options& options, const std::string&) {
        member(options) = true;
        return Failure();
    };
}

/// An option that stores its text.
template <typename Member>
Taker Text(Member member) {
    return [member](Options& options, const std::string& value) {
        member(options) = value;
        return Failure();
    };
}

Taker Task(Options::Task task) {
    return [task](Options& options, const std::string&) {
        options.task = task;
        return Failure();
    };
}

const std::vector<Option>& Table() {
    static const std::vector<Option> table = {
        {"model", Value::Needed, "NAME[:BAND]", "the radio to play; a radio of several bands needs a band",
         TakeModel},
        {"list", Value::None, "", "list the radios and their bands, and end", Task(Options::Task::List)},
        {"memories", Value::Needed, "FILE", "load the memories from this file, and keep them in it",
         Text([](Options & o) -> auto& { return o.memoryFile; })},
        {"port", Value::Needed, "PORT", "play at this serial port, such as COM5 or /dev/ttyUSB0", TakePort},
        {"ports-dir", Value::Needed, "DIR", "put the link there instead of into the program's folder",
         Text([](Options & o) -> auto& { return o.portsFolder; })},
        {"name", Value::Needed, "NAME", "name of the link; the model's name without it", TakeName},
        {"pace", Value::None, "", "no faster than the speed of the port",
         Switch([](Options & o) -> auto& { return o.pace; })},
        {"banner", Value::Needed, "TEXT", "print this before the first memory (empty: nothing)",
         Text([](Options & o) -> auto& { return o.habits.banner; })},
        {"short", Value::None, "", "send the short line form",
         Switch([](Options & o) -> auto& { return o.habits.shortForm; })},
        {"guard-names", Value::None, "", "send the guards as GD1 and GD2",
         Switch([](Options & o) -> auto& { return o.habits.guardNames; })},
        {"all", Value::None, "", "send every memory, those without data too",
         Switch([](Options & o) -> auto& { return o.habits.allRows; })},
        {"no-end", Value::None, "", "stop after the last memory without an end line",
         [](Options& o, const std::string&) {
             o.habits.endLine = false;
             return Failure();
         }},
        {"parity", Value::Optional, "text|all|bytes",
         "set bit 7 on what is sent (text: not on numbers; bytes: on line ends, too)", TakeParity},
        {"key-delay", Value::Needed, "MS", "press the radio's key after this time (500)",
         [](Options& o, const std::string& v) { return TakeMilliseconds(v, o.habits.keyDelay); }},
        {"protocol", Value::Needed, "0|1|2", "transfer protocol of a digital radio", Digital(TakeProtocol)},
        {"firmware", Value::Needed, "DIGITS", "its firmware version, six characters", Digital(TakeFirmware)},
        {"modes", Value::Needed, "HEX", "its enabled operating modes (70)", Digital(TakeModes)},
        {"stamp", Value::Needed, "14DIGITS", "its identity stamp", Digital(TakeStamp)},
        {"serial", Value::Needed, "TEXT", "its serial number", Digital(TakeSerial)},
        {"hardware", Value::Needed, "FILE", "its hardware texts",
         Text([](Options & o) -> auto& { return o.digital.hardwareFile; })},
        {"config", Value::Needed, "FILE", "load its configuration from this file, and keep it in it",
         Text([](Options & o) -> auto& { return o.digital.habits.configFile; })},
        {"debug-log", Value::Needed, "FILE", "the records of its debug log",
         Text([](Options & o) -> auto& { return o.digital.logFile; })},
        {"fault", Value::Needed, "KIND@N[/T]", "play a fault at line N (of transfer T only); repeatable",
         TakeFault},
        {"late", Value::Needed, "MS", "delay of a late-ack fault (5500)",
         [](Options& o, const std::string& v) { return TakeMilliseconds(v, o.late); }},
        {"log", Value::Needed, "FILE", "write every line and its time into this file",
         Text([](Options & o) -> auto& { return o.logFile; })},
        {"reply-times", Value::Needed, "FILE", "write how long the program takes for each next line there",
         Text([](Options & o) -> auto& { return o.replyTimesFile; })},
        {"once", Value::None, "", "end when the port is closed after a completed transfer",
         Switch([](Options & o) -> auto& { return o.once; })},
        {"help", Value::None, "", "show this, and end", Task(Options::Task::Help)},
    };
    return table;
}

const Option* FindOption(std::string_view name) {
    for (const Option& option : Table())
        if (option.name == name)
            return &option;
    return nullptr;
}

} // namespace

Failure ParseOptions(const std::vector<std::string>& arguments, Options& options) {
    for (size_t k = 0; k < arguments.size(); ++k) {
        const std::string& argument = arguments[k];
        const size_t equals = argument.find('=');
        const Option* option = argument.starts_with("--")
                                   ? FindOption(std::string_view(argument).substr(2, equals - 2))
                                   : nullptr;
        if (!option)
            return "unknown argument \"" + argument + "\" (see --help)";
        std::string value;
        if (equals != std::string::npos) {
            if (option->value == Value::None)
                return "--" + std::string(option->name) + " takes no value";
            value = argument.substr(equals + 1);
        } else if (option->value == Value::Needed) {
            if (++k == arguments.size())
                return argument + " needs a value";
            value = arguments[k];
        }
        if (Failure failure = option->take(options, value))
            return failure;
    }
    if (options.task != Options::Task::Play)
        return {};
    if (!options.model && !options.digitalModel)
        return "say which radio to play with --model (--list names them all)";
    if (options.name.empty())
        options.name = options.model ? options.model->name : options.digitalModel->name;
    options.habits.memoryFile = options.digital.habits.memoryFile = options.memoryFile;
    return options.model ? Failure() : CompleteHabits(*options.digitalModel, options.digital);
}

std::string HelpText() {
    std::string text = "Usage: zelk-radio --model NAME[:BAND] [option...]\n"
                       "Plays a radio on a simulated serial port, or on one that --port names.\n"
                       "Windows has no simulated ports: there it needs --port.\n\n";
    for (const Option& option : Table()) {
        std::string left = "  --" + std::string(option.name);
        if (option.value == Value::Optional)
            left += "[=" + std::string(option.valueName) + "]";
        else if (option.value == Value::Needed)
            left += " " + std::string(option.valueName);
        left.resize(std::max<size_t>(left.size() + 1, 24), ' ');
        text += left + std::string(option.help) + "\n";
    }
    return text + "\nFaults: " + FaultNames() +
           ".\n"
           "Ctrl+C ends it. Signals on Linux: USR1 presses the radio's key; TERM, INT and HUP end it.\n";
}

std::string ListText() {
    std::string text;
    for (const AnalogModel& model : AnalogModels()) {
        char line[160];
        std::snprintf(line, sizeof line, "%-12s %-11s %3d memories%s%s%s%s\n",
                      std::string(model.name).c_str(), std::string(model.band).c_str(), model.rows,
                      HasGuards(model) ? ", 2 of them guards" : "",
                      model.openingNumber ? (", rt " + std::to_string(model.openingNumber)).c_str() : "",
                      model.key == StartKey::Enter  ? ", ENTER starts reading"
                      : model.key == StartKey::Home ? ", HOME starts reading"
                                                    : "",
                      model.writable ? "" : ", read only");
        text += line;
    }
    for (const DigitalModel& model : DigitalModels())
        text += ListLine(model);
    return text;
}

} // namespace Simulator
