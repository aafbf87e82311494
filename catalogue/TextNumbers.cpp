#include "catalogue/TextNumbers.h"

#include "catalogue/HexDigits.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

namespace {

bool IsBlank(wchar_t c) {
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}

/// The value of a digit of the base, -1 for any other character.
int DigitOf(wchar_t c, int base) {
    const int value = HexDigitValue(c);
    return value < base ? value : -1;
}

/// Text of the value in the base, with its sign, padded with leading zeros to at least width characters.
/// wxString::Format takes many times as long.
wxString Digits(uint32_t value, bool negative, uint32_t base, int width) {
    wchar_t text[16];
    wchar_t* const end = std::end(text);
    wchar_t* at = end;
    do
        *--at = HexDigit(value % base);
    while (value /= base);
    while (end - at + negative < width)
        *--at = L'0';
    if (negative)
        *--at = L'-';
    return wxString(at, static_cast<size_t>(end - at));
}

} // namespace

// Reads the characters as stored: the check of a page reads thousands of numbers, and converting each text
// would cost more than everything else.
std::optional<int> ReadNumber(const wxString& text, int base) {
    return ReadNumber(std::wstring_view(text.ToStdWstring()), base);
}

std::optional<int> ReadNumber(std::wstring_view text, int base) {
    const auto end = text.end();
    auto at = std::find_if_not(text.begin(), end, IsBlank);
    const bool negative = at != end && *at == L'-';
    if (negative || (at != end && *at == L'+'))
        ++at;
    if (base == 16 && end - at > 2 && at[0] == L'0' && (at[1] == L'x' || at[1] == L'X') &&
        DigitOf(at[2], base) >= 0)
        at += 2;
    if (at == end || DigitOf(*at, base) < 0)
        return std::nullopt;
    constexpr int64_t beyond = int64_t{INT32_MAX} + 1;
    int64_t value = 0;
    for (; at != end && DigitOf(*at, base) >= 0; ++at)
        value = std::min(value * base + DigitOf(*at, base), beyond);
    return static_cast<int>(std::clamp<int64_t>(negative ? -value : value, INT32_MIN, INT32_MAX));
}

int ReadDecimal(const wxString& text) {
    return ReadNumber(text, 10).value_or(0);
}

int ReadHex(const wxString& text) {
    return ReadNumber(text, 16).value_or(0);
}

std::optional<int> WholeNumber(const wxString& text, int min, int max) {
    if (text.empty() || text.find_first_not_of("0123456789") != wxString::npos)
        return std::nullopt;
    const int number = ReadDecimal(text);
    return number >= min && number <= max ? std::optional(number) : std::nullopt;
}

std::optional<wxString> PlainDecimal(const wxString& text) {
    if (text.find_first_not_of("0123456789.,") != wxString::npos)
        return std::nullopt;
    const size_t point = text.find_first_of(".,");
    wxString whole = text.Left(point);
    wxString fraction = point == wxString::npos ? wxString() : text.Mid(point + 1);
    if (fraction.find_first_of(".,") != wxString::npos || (whole.empty() && fraction.empty()))
        return std::nullopt;
    while (whole.length() > 1 && whole.StartsWith("0"))
        whole.erase(0, 1);
    while (fraction.EndsWith("0"))
        fraction.RemoveLast();
    if (whole.empty())
        whole = "0";
    return fraction.empty() ? whole : whole + "." + fraction;
}

wxString DecimalText(uint32_t number, int width) {
    return Digits(number, false, 10, width);
}

wxString HexadecimalText(uint32_t number, int width) {
    return Digits(number, false, 16, width);
}

wxString NumberText(int number) {
    const bool negative = number < 0;
    const auto value = static_cast<uint32_t>(number);
    return Digits(negative ? 0 - value : value, negative, 10, 3);
}

wxString FlagText(int flags) {
    return HexadecimalText(static_cast<uint32_t>(flags), 2);
}

wxString NumberList(const std::vector<int>& numbers) {
    // A tool tip with more numbers would not fit the screen.
    constexpr size_t most = 260;
    wxString list;
    for (size_t i = 0; i < numbers.size() && i < most; ++i)
        list += wxString::Format(i == 0 ? "%d" : ", %d", numbers[i]);
    return numbers.size() > most ? list + ", ..." : list;
}
