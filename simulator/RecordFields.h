// Reads the fields of a memory record one by one and remembers the first that is wrong.
#pragma once

#include "simulator/DigitalModels.h"

#include <string>
#include <string_view>

namespace Simulator {

/// Positions count characters of the line from 0. After a failure the answers mean nothing, but asking on
/// is safe; the first failure stands.
class RecordFields {
public:
    /// `body` is a record without its checksum, made of upper-case hexadecimal digits behind its T.
    explicit RecordFields(std::string_view body) : m_body(body) {}

    bool IsGood() const { return m_trouble.empty(); }
    /// What is wrong, with its position; empty if all is good.
    const std::string& Trouble() const { return m_trouble; }

    /// The text must stand there.
    void Literal(int position, std::string_view text, std::string_view name);
    /// Zeros must stand there.
    void Zeros(int position, int length, std::string_view name);
    /// A number of `digits` hexadecimal digits, from `low` to `high`.
    long Number(int position, int digits, long low, long high, std::string_view name);
    /// A character, which must be one of `allowed`.
    char Letter(int position, std::string_view allowed, std::string_view name);
    /// `length` printable ASCII characters.
    std::string Text(int position, int length, std::string_view name);
    /// Frequency in Hz from eight characters such as "154.1234": 0 or in one of the model's ranges.
    long FrequencyText(int position, const DigitalModel& model, std::string_view name);
    /// The same from eight digits of Hz.
    long FrequencyHertz(int position, const DigitalModel& model, std::string_view name);

    /// Reports a failure found outside.
    void Refuse(int position, const std::string& why);

private:
    long InRange(int position, long hertz, const DigitalModel& model, std::string_view name);

    std::string_view m_body;
    std::string m_trouble;
};

/// ASCII characters as pairs of hexadecimal digits.
std::string HexOfText(std::string_view text);

} // namespace Simulator
