#include "simulator/AnalogLine.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <iterator>

namespace Simulator {

namespace {

constexpr int NoTone = 64;

// The squelch codes that the radio's decoder knows.
constexpr int Codes[] = {
    23,  25,  26,  31,  32,  43,  47,  51,  54,  65,  71,  72,  73,  74,  114, 115, 116, 125, 131, 132, 134,
    143, 152, 155, 156, 162, 165, 172, 174, 205, 223, 226, 243, 244, 245, 251, 261, 263, 265, 271, 306, 311,
    315, 331, 343, 346, 351, 364, 365, 371, 411, 412, 413, 423, 431, 432, 445, 464, 465, 466, 503, 506, 516,
    532, 546, 565, 606, 612, 624, 627, 631, 632, 654, 662, 664, 703, 712, 723, 731, 732, 734, 743, 754,
};
static_assert(std::size(Codes) == 83);

struct Literal {
    size_t position;
    std::string_view text;
};

constexpr Literal Labels[] = {
    {3, " "},    {13, " "},        {22, "RX "}, {33, "TX CTCSS: "},
    {45, "RX "}, {50, "TX DPL: "}, {61, "RX "}, {67, "TX "},
};

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The value of a field of decimal digits, or -1 if it holds anything else.
int64_t Digits(std::string_view field) {
    int64_t value = 0;
    for (char c : field) {
        if (!IsDigit(c))
            return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

/// Reads "ddd.dddd" (MHz) in units of 100 Hz; -1 if malformed.
int64_t Frequency(std::string_view field) {
    const int64_t whole = Digits(field.substr(0, 3));
    const int64_t fraction = Digits(field.substr(4));
    return whole < 0 || fraction < 0 || field[3] != '.' ? -1 : whole * 10000 + fraction;
}

/// The range of the model that contains the frequency, or nullptr.
const FrequencyRange* RangeOf(const AnalogModel& model, int64_t frequency) {
    for (const FrequencyRange& range : model.ranges)
        if (range.high > 0 && frequency >= range.low * 10000L && frequency <= range.high * 10000L)
            return &range;
    return nullptr;
}

/// True in the navigation part of the airband, where the radio never transmits.
bool IsReceiveOnly(const FrequencyRange& range, int64_t frequency) {
    return range.low == 108 && frequency < 118 * 10000L;
}

bool IsCode(std::string_view field) {
    const int64_t value = Digits(field);
    return field == "000" ||
           (value > 0 && std::find(std::begin(Codes), std::end(Codes), value) != std::end(Codes));
}

bool IsDescription(std::string_view field) {
    if (std::any_of(field.begin(), field.end(), [](char c) { return c < ' ' || c > '~'; }))
        return false;
    return field[0] != ' ' || field.find_first_not_of(' ') == std::string_view::npos;
}

bool IsScan(std::string_view field) {
    if (field == "LOCK ")
        return true;
    bool any = false;
    char number = '1';
    for (const char mark : field) {
        if (mark != '_' && mark != number)
            return false;
        any = any || mark != '_';
        ++number;
    }
    return any; // a channel in no list has "LOCK "
}

std::string FrequencyField(int64_t frequency) {
    char text[32];
    std::snprintf(text, sizeof text, "%03" PRId64 ".%04" PRId64, frequency / 10000, frequency % 10000);
    return text;
}

std::string ToneField(int tone) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d", tone);
    return text;
}

/// Positions 0 to 42, which both forms share.
std::string CommonPart(const AnalogMemory& memory, std::string_view numberField) {
    return std::string(numberField) + " " + memory.description + " " + FrequencyField(memory.rxFrequency) +
           "RX " + FrequencyField(memory.txFrequency) + "TX CTCSS: ";
}

} // namespace

Result<AnalogMemory> ParseLongLine(std::string_view line, const AnalogModel& model, int highest) {
    const auto Refuse = [](size_t position, const std::string& reason) {
        return Refusal{"position " + std::to_string(position) + ": " + reason};
    };
    if (line.size() != LongLineLength)
        return Refusal{"length is " + std::to_string(line.size()) + ", not 76"};
    for (const Literal& label : Labels)
        if (line.substr(label.position, label.text.size()) != label.text)
            return Refuse(label.position, "expected \"" + std::string(label.text) + "\"");

    AnalogMemory memory;
    memory.number = static_cast<int>(Digits(line.substr(0, 3)));
    if (memory.number < 1 || memory.number > highest)
        return Refuse(0, "channel number is not from 001 to " + NumberField(highest));
    memory.description = line.substr(4, 9);
    if (!IsDescription(memory.description))
        return Refuse(4, "description is not printable text that starts at the left");
    memory.rxFrequency = Frequency(line.substr(14, 8));
    const FrequencyRange* range = RangeOf(model, memory.rxFrequency);
    if (!range)
        return Refuse(14, "receive frequency is malformed or out of band");
    memory.txFrequency = Frequency(line.substr(25, 8));
    const bool silent = memory.txFrequency == 0 && IsReceiveOnly(*range, memory.rxFrequency);
    if (!silent && RangeOf(model, memory.txFrequency) != range)
        return Refuse(25, "transmit frequency is malformed or out of band");
    memory.rxTone = static_cast<int>(Digits(line.substr(43, 2)));
    if (memory.rxTone < 1 || memory.rxTone > NoTone)
        return Refuse(43, "receive tone is not from 01 to 64");
    memory.txTone = static_cast<int>(Digits(line.substr(48, 2)));
    if (memory.txTone < 1 || memory.txTone > NoTone)
        return Refuse(48, "transmit tone is not from 01 to 64");
    memory.rxCode = line.substr(58, 3);
    if (!IsCode(memory.rxCode))
        return Refuse(58, "receive code is unknown");
    memory.txCode = line.substr(64, 3);
    if (!IsCode(memory.txCode))
        return Refuse(64, "transmit code is unknown");
    memory.scan = line.substr(70, 5);
    if (!IsScan(memory.scan))
        return Refuse(70, "scan text is neither \"LOCK \" nor a choice of 12345");
    memory.mode = line[75];
    if (memory.mode != 'N' && memory.mode != 'W')
        return Refuse(75, "mode is neither N nor W");
    return memory;
}

std::string FormatLongLine(const AnalogMemory& memory, std::string_view numberField) {
    return CommonPart(memory, numberField) + ToneField(memory.rxTone) + "RX " + ToneField(memory.txTone) +
           "TX DPL: " + memory.rxCode + "RX " + memory.txCode + "TX " + memory.scan + memory.mode;
}

std::string FormatShortLine(const AnalogMemory& memory, std::string_view numberField) {
    return CommonPart(memory, numberField) + ToneField(memory.txTone) + "TX DPL: " + memory.txCode + "TX " +
           memory.scan + memory.mode;
}

std::string NumberField(int number) {
    char text[16];
    std::snprintf(text, sizeof text, "%03d", number);
    return text;
}

AnalogMemory EmptyMemory(const AnalogModel& model, int number) {
    AnalogMemory memory;
    memory.number = number;
    memory.description = std::string(9, ' ');
    memory.rxFrequency = memory.txFrequency = model.ranges[0].low * 10000L;
    return memory;
}

} // namespace Simulator
