#include "catalogue/TextNumbers.h"

#include <cstdint>
#include <cstdlib>
#include <string>

std::optional<int> ReadNumber(const wxString& text, int base) {
    const std::string bytes = text.utf8_string();
    char* end = nullptr;
    const long long value = std::strtoll(bytes.c_str(), &end, base);
    if (end == bytes.c_str())
        return std::nullopt;
    if (value > INT32_MAX)
        return INT32_MAX;
    if (value < INT32_MIN)
        return INT32_MIN;
    return static_cast<int>(value);
}

int ReadDecimal(const wxString& text) {
    return ReadNumber(text, 10).value_or(0);
}

int ReadHex(const wxString& text) {
    return ReadNumber(text, 16).value_or(0);
}

wxString NumberText(int number) {
    return wxString::Format("%03d", number);
}

wxString FlagText(int flags) {
    return wxString::Format("%02X", static_cast<unsigned>(flags));
}
