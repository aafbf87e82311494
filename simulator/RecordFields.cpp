#include "simulator/RecordFields.h"

#include "simulator/HexRecord.h"

#include <algorithm>

namespace Simulator {

void RecordFields::Refuse(int position, const std::string& reason) {
    if (!m_failure)
        m_failure = "position " + std::to_string(position) + ": " + reason;
}

void RecordFields::Literal(int position, std::string_view text, std::string_view name) {
    if (m_body.substr(static_cast<size_t>(position), text.size()) != text)
        Refuse(position, std::string(name) + " is not \"" + std::string(text) + "\"");
}

void RecordFields::Zeros(int position, int length, std::string_view name) {
    Literal(position, std::string(static_cast<size_t>(length), '0'), name);
}

int64_t RecordFields::Number(int position, int digits, int64_t low, int64_t high, std::string_view name) {
    const int64_t value = HexValue(m_body.substr(static_cast<size_t>(position), static_cast<size_t>(digits)));
    if (value < low || value > high)
        Refuse(position, std::string(name) + " is " + std::to_string(value) + ", not from " +
                             std::to_string(low) + " to " + std::to_string(high));
    return value;
}

char RecordFields::Letter(int position, std::string_view allowed, std::string_view name) {
    const char letter = static_cast<char>(HexValue(m_body.substr(static_cast<size_t>(position), 2)));
    if (allowed.find(letter) == std::string_view::npos)
        Refuse(position, std::string(name) + " is none of \"" + std::string(allowed) + "\"");
    return letter;
}

std::string RecordFields::Text(int position, int length, std::string_view name) {
    std::string text;
    for (int k = 0; k < length; ++k) {
        const int64_t c = HexValue(m_body.substr(static_cast<size_t>(position + 2 * k), 2));
        if (c < ' ' || c > '~')
            Refuse(position + 2 * k, std::string(name) + " holds a character that can't be shown");
        text += static_cast<char>(c);
    }
    return text;
}

int64_t RecordFields::FrequencyText(int position, const DigitalModel& model, std::string_view name) {
    const std::string text = Text(position, 8, name);
    int64_t value = 0;
    for (size_t k = 0; k < text.size(); ++k) {
        const bool good = k == 3 ? text[k] == '.' : text[k] >= '0' && text[k] <= '9';
        if (!good) {
            Refuse(position, std::string(name) + " \"" + text + "\" is not like 154.1234");
            return 0;
        }
        if (k != 3)
            value = value * 10 + (text[k] - '0');
    }
    return InRange(position, value * 100, model, name);
}

int64_t RecordFields::FrequencyHertz(int position, const DigitalModel& model, std::string_view name) {
    return InRange(position, HexValue(m_body.substr(static_cast<size_t>(position), 8)), model, name);
}

int64_t RecordFields::InRange(int position, int64_t hertz, const DigitalModel& model, std::string_view name) {
    const auto Holds = [hertz](const FrequencyRange& range) {
        return hertz >= range.low * 1'000'000L && hertz <= range.high * 1'000'000L;
    };
    if (hertz != 0 && std::none_of(model.ranges.begin(), model.ranges.end(), Holds))
        Refuse(position, std::string(name) + " of " + std::to_string(hertz) + " Hz is out of band");
    return hertz;
}

std::string HexOfText(std::string_view text) {
    std::string digits;
    for (const char c : text)
        digits += Hex(static_cast<unsigned char>(c), 2);
    return digits;
}

} // namespace Simulator
