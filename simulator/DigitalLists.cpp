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
    const auto Byte = [](int value) { return Hex(static_cast<unsigned long>(value), 2); };
    return Byte(flags) + Byte(hour) + Byte(1 << 6 | minute) + Byte(2 << 6 | second) + std::string(values);
}

std::string Unused(int entries) {
    std::string data;
    for (int k = 0; k < entries; ++k)
        data += "FFFFFFFFFFFFFFFF";
    return data;
}

} // namespace

bool IsRecordText(std::string_view text, std::string& problem) {
    if (text.size() > LongestText)
        problem = "is longer than 252 characters";
    else if (std::any_of(text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; }))
        problem = "holds a character that can't be shown";
    else
        return true;
    return false;
}

std::vector<std::string> DefaultHardware() {
    return {"Main board: rev C", "RF main: 136-174 MHz", "RF guard: 136-174 MHz", "Bootloader: 1.04"};
}

bool LoadHardware(const std::string& path, std::vector<std::string>& lines, std::string& problem) {
    std::vector<std::string> read;
    const auto Take = [&read](const std::string& line, std::string& why) {
        read.push_back(line);
        return IsRecordText(line, why);
    };
    if (!ReadLines(path, Missing::IsError, Take, problem))
        return false;
    lines = std::move(read);
    return true;
}

std::vector<std::string> DefaultConfig() {
    return {"C:00:01020304:10:20:C5:SQUELCH", "C:01:FF:00:00:00:BACKLIGHT", "C:02:80:40:20:1F:SIDETONE"};
}

bool IsGoodConfig(std::string_view line, std::string& problem) {
    const std::vector<std::string> fields = ConfigFields(line);
    if (fields.size() < 6) {
        problem = "has fewer than 6 fields";
        return false;
    }
    long sum = 1;
    for (size_t k = 2; k <= 5; ++k) {
        if (fields[k].size() % 2 != 0 || !IsHex(fields[k])) {
            problem = "field " + std::to_string(k) + " is not made of bytes in hexadecimal";
            return false;
        }
        for (size_t at = 0; at < fields[k].size(); at += 2)
            sum += HexValue(std::string_view(fields[k]).substr(at, 2));
    }
    if (sum % 256 != 0)
        problem = "bytes of fields 2 to 5 and 1 add up to " + std::to_string(sum) + ", no multiple of 256";
    return sum % 256 == 0;
}

bool LoadConfig(const std::string& path, std::vector<std::string>& lines, std::string& problem) {
    std::vector<std::string> read;
    bool exists = false;
    const auto Take = [&](const std::string& line, std::string& why) {
        exists = true;
        read.push_back(line);
        why = "more than 255 lines";
        return read.size() <= MostConfigLines && IsRecordText(line, why) && IsGoodConfig(line, why);
    };
    if (!ReadLines(path, Missing::IsEmpty, Take, problem))
        return false;
    if (exists)
        lines = std::move(read);
    return true;
}

bool SaveConfig(const std::string& path, const std::vector<std::string>& lines, std::string& problem) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return WriteTextFile(path, text, problem);
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

bool LoadLog(const std::string& path, std::vector<std::string>& records, std::string& problem) {
    std::vector<std::string> read;
    const auto Take = [&read](const std::string& line, std::string& why) {
        if (line.starts_with("T1")) {
            read.push_back(line);
            why = "no upper-case hexadecimal digits";
            return IsHex(line.substr(1)) && ParseRecord(WithChecksum(line), why).has_value();
        }
        const bool parted = line.size() > 5 && line[4] == ' ';
        const std::string data = parted ? line.substr(5) : "";
        if (!parted || !IsHex(line.substr(0, 4)) || !IsHex(data) || data.size() % 2 != 0 ||
            data.size() > LongestLogData) {
            why = "neither a record nor an address of four digits, a blank and bytes in hexadecimal";
            return false;
        }
        read.push_back(LogRecord(line.substr(0, 4), data));
        return true;
    };
    if (!ReadLines(path, Missing::IsError, Take, problem))
        return false;
    records = std::move(read);
    return true;
}

} // namespace Simulator
