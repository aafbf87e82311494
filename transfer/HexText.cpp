#include "transfer/HexText.h"

#include "catalogue/TextNumbers.h"

namespace {

/// Out of range for a digit, which has four bits.
constexpr uint32_t NoDigit = 16;

constexpr uint32_t DigitValue(wchar_t c) {
    if (c >= L'0' && c <= L'9')
        return static_cast<uint32_t>(c - L'0');
    if (c >= L'A' && c <= L'F')
        return static_cast<uint32_t>(c - L'A' + 10);
    if (c >= L'a' && c <= L'f')
        return static_cast<uint32_t>(c - L'a' + 10);
    return NoDigit;
}

} // namespace

// Works on the characters as stored: converting or copying parts of a line costs more than reading them.

int HexByteSum(const wxString& text) {
    const std::wstring_view line = text.ToStdWstring();
    int sum = 0;
    for (size_t at = 0; at + 1 < line.length(); at += 2)
        sum += ReadNumber(line.substr(at, 2), 16).value_or(0);
    return sum;
}

uint32_t HexNumberAt(const wxString& text, size_t position, size_t digits) {
    return HexNumberAt(std::wstring_view(text.ToStdWstring()), position, digits);
}

uint32_t HexNumberAt(std::wstring_view text, size_t position, size_t digits) {
    uint32_t number = 0;
    for (size_t at = position; at < position + digits; ++at)
        number = number << 4 | (at < text.length() && IsHexDigit(text[at]) ? DigitValue(text[at]) : 0);
    return number;
}

bool IsHexDigit(wchar_t c) {
    return DigitValue(c) != NoDigit;
}

void WriteHex(wchar_t* to, size_t digits, uint32_t number) {
    for (size_t at = digits; at-- > 0; number >>= 4)
        to[at] = L"0123456789ABCDEF"[number & 0xF];
}

bool HasConfigChecksum(const wxArrayString& fields) {
    constexpr size_t firstField = 2, lastField = 5;
    int sum = 1;
    for (size_t field = firstField; field <= lastField && field < fields.size(); ++field)
        sum += HexByteSum(fields[field]);
    return sum % 256 == 0;
}
