#include "simulator/HexRecord.h"

namespace Simulator {

namespace {

constexpr std::string_view Digits = "0123456789ABCDEF";

/// One's complement of the sum of the bytes after letter and type.
unsigned Checksum(std::string_view body) {
    unsigned sum = 0;
    for (size_t k = 2; k + 1 < body.size(); k += 2)
        sum += static_cast<unsigned>(HexValue(body.substr(k, 2)));
    return ~sum & 0xFF;
}

} // namespace

std::string Hex(uint64_t value, int digits) {
    std::string text(static_cast<size_t>(digits), '0');
    for (auto place = text.rbegin(); place != text.rend(); ++place, value >>= 4)
        *place = Digits[value & 0xF];
    return text;
}

bool IsHex(std::string_view text) {
    return text.find_first_not_of(Digits) == std::string_view::npos;
}

int64_t HexValue(std::string_view text) {
    if (text.empty() || text.size() > 8 || !IsHex(text))
        return -1;
    int64_t value = 0;
    for (char c : text)
        value = value * 16 + static_cast<int64_t>(Digits.find(c));
    return value;
}

std::string WithChecksum(std::string_view body) {
    return std::string(body) + Hex(Checksum(body), 2);
}

Result<HexRecord> ParseRecord(std::string_view line) {
    if (!line.starts_with('T'))
        return Refusal{"doesn't begin with T"};
    if (line.size() < 10)
        return Refusal{"is too short for a record"};
    if (line[1] != '0' && line[1] != '1' && line[1] != '2' && line[1] != '9')
        return Refusal{"type is none of 0, 1, 2, 9"};
    for (size_t k = 2; k < line.size(); ++k)
        if (!IsHex(line.substr(k, 1)))
            return Refusal{"position " + std::to_string(k) + ": no upper-case hexadecimal digit"};
    if (line.size() % 2 != 0)
        return Refusal{"holds half a byte"};
    const auto count = static_cast<size_t>(HexValue(line.substr(2, 2)));
    if (line.size() != 4 + 2 * count)
        return Refusal{"count is " + std::to_string(count) + ", but " +
                       std::to_string((line.size() - 4) / 2) + " bytes follow"};
    const std::string_view body = line.substr(0, line.size() - 2);
    if (WithChecksum(body) != line)
        return Refusal{"checksum is " + std::string(line.substr(body.size())) + ", not " +
                       Hex(Checksum(body), 2)};
    HexRecord record{
        static_cast<HexRecord::Type>(line[1] - '0'), static_cast<int>(HexValue(line.substr(4, 4))), {}};
    for (size_t k = 8; k < body.size(); k += 2)
        record.data.push_back(static_cast<uint8_t>(HexValue(body.substr(k, 2))));
    if (record.data.empty() != (record.type == HexRecord::Type::End))
        return Refusal{record.data.empty() ? "holds no data" : "an end record holds no data"};
    return record;
}

std::string FormatRecord(const HexRecord& record) {
    std::string body = "T" + std::to_string(static_cast<int>(record.type)) + Hex(record.data.size() + 3, 2) +
                       Hex(static_cast<uint64_t>(record.address), 4);
    for (uint8_t byte : record.data)
        body += Hex(byte, 2);
    return WithChecksum(body);
}

} // namespace Simulator
