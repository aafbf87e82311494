// Small readings of texts.
#pragma once

#include <cstdlib>
#include <string>

namespace Tour {

/// Without blanks at its ends.
inline std::string Trimmed(std::string text) {
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

/// The decimal number at the text's beginning, 0 where none is.
inline int Number(const std::string& text) {
    return std::atoi(text.c_str());
}

} // namespace Tour
