#include "simulator/DigitalLists.h"

#include "simulator/HexRecord.h"
#include "simulator/RecordFields.h"
#include "simulator/TextFile.h"

#include <algorithm>

namespace Simulator {

namespace {

constexpr size_t MostConfigLines = 255;
constexpr size_t LongestLogData = 2 * 248;

std::vector<std::string> ConfigFields(std::string_view line) {
    std::vector<std::string> fields(1);
    for (size_t k = 0; k < line.size(); ++k) {
        if (line[k] == ':')
            fields.emplace_back();
        else if (line[k] == '\\' && k + 1 < line.size())
            fields.back() += line[++k];
        else
            fields.back() += line[k];
    }
    return fields;
}

/// A sample of the log: time with two state values in the high bits of minute and second, then four
/// temperatures.
std::string Sample(int flags, int hour, int minute, int second, std::string_view values) {
    const auto Byte = [](int value) { return Hex(static_cast<uint64_t>(value), 2); };
    return Byte(flags) + Byte(hour) + Byte(1 << 6 | minute) + Byte(2 << 6 | second) + std::string(values);
}

std::string Unused(int entries) {
    std::string data;
    for (int k = 0; k < entries; ++k)
        data += "FFFFFFFFFFFFFFFF";
    return data;
}

} // namespace

Failure CheckRecordText(std::string_view text) {
    if (text.size() > LongestText)
        return "is longer than 252 characters";
    if (std::any_of(text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; }))
        return "holds a character that can't be shown";
    return {};
}

std::vector<std::string> DefaultHardware() {
    return {"Main board: rev C", "RF main: 136-174 MHz", "RF guard: 136-174 MHz", "Bootloader: 1.04"};
}

Failure LoadHardware(const std::string& path, std::vector<std::string>& lines) {
    std::vector<std::string> read;
    const auto Take = [&read](const std::string& line) {
        read.push_back(line);
        return CheckRecordText(line);
    };
    if (Failure failure = ReadLines(path, Missing::IsError, Take))
        return failure;
    lines = std::move(read);
    return {};
}

std::vector<std::string> DefaultConfig() {
    return {"C:00:01020304:10:20:C5:SQUELCH", "C:01:FF:00:00:00:BACKLIGHT", "C:02:80:40:20:1F:SIDETONE"};
}

Failure CheckConfig(std::string_view line) {
    const std::vector<std::string> fields = ConfigFields(line);
    if (fields.size() < 6)
        return "has fewer than 6 fields";
    int64_t sum = 1;
    for (size_t k = 2; k <= 5; ++k) {
        if (fields[k].size() % 2 != 0 || !IsHex(fields[k]))
            return "field " + std::to_string(k) + " is not made of bytes in hexadecimal";
        for (size_t at = 0; at < fields[k].size(); at += 2)
            sum += HexValue(std::string_view(fields[k]).substr(at, 2));
    }
    if (sum % 256 != 0)
        return "bytes of fields 2 to 5 and 1 add up to " + std::to_string(sum) + ", no multiple of 256";
    return {};
}

Failure LoadConfig(const std::string& path, std::vector<std::string>& lines) {
    std::vector<std::string> read;
    bool exists = false;
    const auto Take = [&](const std::string& line) -> Failure {
        exists = true;
        read.push_back(line);
        if (read.size() > MostConfigLines)
            return "more than 255 lines";
        if (Failure failure = CheckRecordText(line))
            return failure;
        return CheckConfig(line);
    };
    if (Failure failure = ReadLines(path, Missing::IsEmpty, Take))
        return failure;
    if (exists)
        lines = std::move(read);
    return {};
}

Failure SaveConfig(const std::string& path, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return WriteTextFile(path, text);
}

std::string TextRecord(std::string_view text) {
    return "T1" + Hex(text.size() + 3, 2) + "0000" + HexOfText(text);
}

std::string LogRecord(std::string_view address, std::string_view data) {
    return "T1" + Hex((1 + address.size() + data.size() + 1) / 2 + 1, 2) + "0" + std::string(address) +
           std::string(data) + "0";
}

std::vector<std::string> DefaultLog(int protocol) {
    if (protocol == 2)
        return {LogRecord("2000", Sample(0x01, 12, 34, 56, "191AFF1B") + Sample(0x01, 12, 35, 6, "191B001C") +
                                      Sample(0x08, 12, 35, 16, "01F402BC") + Unused(5)),
                LogRecord("2040", Sample(0x03, 12, 36, 0, "1A1C051D") + Unused(7))};
    // A block begins with error code and insert pointer. Bit 7 marks received bytes; 02 and 03 enclose a
    // message from the radio itself.
    return {LogRecord("2000", "00030123" + HexOfText("ATI") + "0D" + "CFCB8D" + "02" + HexOfText("Power up")),
            LogRecord("2020", HexOfText(", 12.6 V") + "03" + HexOfText("AT") + "05" + "CFCB")};
}

Failure LoadLog(const std::string& path, std::vector<std::string>& records) {
    std::vector<std::string> read;
    const auto Take = [&read](const std::string& line) -> Failure {
        if (line.starts_with("T1")) {
            read.push_back(line);
            if (!IsHex(line.substr(1)))
                return "no upper-case hexadecimal digits";
            const auto record = ParseRecord(WithChecksum(line));
            return record ? Failure() : record.Reason();
        }
        const bool parted = line.size() > 5 && line[4] == ' ';
        const std::string data = parted ? line.substr(5) : "";
        if (!parted || !IsHex(line.substr(0, 4)) || !IsHex(data) || data.size() % 2 != 0 ||
            data.size() > LongestLogData)
            return "neither a record nor an address of four digits, a blank and bytes in hexadecimal";
        read.push_back(LogRecord(line.substr(0, 4), data));
        return {};
    };
    if (Failure failure = ReadLines(path, Missing::IsError, Take))
        return failure;
    records = std::move(read);
    return {};
}

} // namespace Simulator
