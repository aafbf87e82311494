#include "tests/simulator/RadioLines.h"

int CountOf(std::string_view text, std::string_view part) {
    int count = 0;
    for (size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

std::string VhfLine(const std::string& number, const std::string& description) {
    return number + " " + description + " 150.0000RX 151.2500TX CTCSS: 64RX 12TX DPL: 000RX 023TX 1_3__N";
}

std::string EndLine(const std::string& word) {
    return word + std::string(74, ' ') + "\r";
}
