// Small helpers to read texts.
#pragma once

#include <cstdlib>
#include <string>

namespace Tour {

/// Returns the text without leading and trailing blanks.
inline std::string Trimmed(std::string text) {
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

/// Returns the decimal number at the start of the text, or 0 if there is none.
inline int Number(const std::string& text) {
    return std::atoi(text.c_str());
}

} // namespace Tour
