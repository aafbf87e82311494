#include "transfer/HexText.h"

#include "catalogue/TextNumbers.h"

namespace {

std::uint32_t DigitValue(wxUniChar c) {
    if (c >= '0' && c <= '9')
        return c.GetValue() - '0';
    if (c >= 'A' && c <= 'F')
        return c.GetValue() - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c.GetValue() - 'a' + 10;
    return 0;
}

} // namespace

int HexByteSum(const wxString& text) {
    int sum = 0;
    for (std::size_t at = 0; at + 1 < text.length(); at += 2)
        sum += ReadHex(text.Mid(at, 2));
    return sum;
}

std::uint32_t HexNumberAt(const wxString& text, std::size_t position, std::size_t digits) {
    std::uint32_t number = 0;
    for (std::size_t at = position; at < position + digits; ++at)
        number = number << 4 | (at < text.length() ? DigitValue(text[at]) : 0);
    return number;
}
