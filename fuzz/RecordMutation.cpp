#include "fuzz/RecordMutation.h"

#include "catalogue/HexDigits.h"

#include <algorithm>

namespace {

constexpr size_t CountPosition = 2;
constexpr size_t ShortestRecord = 8;
constexpr size_t LongestRecord = 400;

int ValueOf(char digit) {
    return std::max(HexDigitValue(digit), 0);
}

std::string BytesOf(std::string_view digits) {
    std::string bytes;
    for (size_t at = 0; at + 1 < digits.size(); at += 2)
        bytes += static_cast<char>(ValueOf(digits[at]) << 4 | ValueOf(digits[at + 1]));
    return bytes;
}

std::string DigitsOf(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += digits[byte >> 4];
        text += digits[byte & 0xF];
    }
    return text;
}

char ChecksumOf(std::string_view bytes) {
    unsigned sum = 0;
    for (const char c : bytes)
        sum += static_cast<unsigned char>(c);
    return static_cast<char>(~sum);
}

} // namespace

std::string MutatedRecord(std::string_view line, bool hasChecksum, Dice& dice) {
    constexpr size_t widest = 8;
    if (line.size() < ShortestRecord || line.size() > LongestRecord || line.front() != 'T')
        return MutatedText(line, LongestRecord);
    std::string bytes = BytesOf(line.substr(CountPosition));
    if (hasChecksum)
        bytes.pop_back();
    Pieces pieces = SplitEvery(bytes, 1, 1 + Throw(dice, widest));
    pieces.stay = Throw(dice, 4) != 0;
    bytes = MutatedPieces(bytes, pieces, LongestRecord / 2, dice);
    // The count includes the checksum, which some callers leave out.
    bytes[0] = static_cast<char>(bytes.size());
    if (hasChecksum)
        bytes += ChecksumOf(bytes);
    return std::string(line.substr(0, CountPosition)) + DigitsOf(bytes);
}
