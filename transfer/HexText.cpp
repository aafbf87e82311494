#include "transfer/HexText.h"

#include "catalogue/HexDigits.h"
#include "catalogue/TextNumbers.h"

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
    for (size_t at = position; at < position + digits; ++at) {
        const int digit = at < text.length() ? HexDigitValue(text[at]) : -1;
        number = number << 4 | (digit >= 0 ? static_cast<uint32_t>(digit) : 0);
    }
    return number;
}

void WriteHex(wchar_t* to, size_t digits, uint32_t number) {
    for (size_t at = digits; at-- > 0; number >>= 4)
        to[at] = HexDigit(number);
}

bool HasConfigChecksum(const wxArrayString& fields) {
    constexpr size_t firstField = 2, lastField = 5;
    int sum = 1;
    for (size_t field = firstField; field <= lastField && field < fields.size(); ++field)
        sum += HexByteSum(fields[field]);
    return sum % 256 == 0;
}
