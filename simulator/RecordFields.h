// Reads the fields of a memory record one by one and keeps the first error.
#pragma once

#include "simulator/DigitalModels.h"
#include "simulator/Result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Simulator {

/// Positions count the characters of the line from 0. After a failure, returned values are meaningless, but
/// further calls are safe; the first failure is kept.
class RecordFields {
public:
    /// `body` is a record without its checksum: T followed by upper-case hexadecimal digits.
    explicit RecordFields(std::string_view body) : m_body(body) {}

    /// The first failure, with its position.
    const Failure& FirstFailure() const { return m_failure; }

    /// Requires this text at the position.
    void Literal(int position, std::string_view text, std::string_view name);
    /// Requires `length` zeros at the position.
    void Zeros(int position, int length, std::string_view name);
    /// Reads a number of `digits` hexadecimal digits, which must be from `low` to `high`.
    int64_t Number(int position, int digits, int64_t low, int64_t high, std::string_view name);
    /// Reads a character, which must be one of `allowed`.
    char Letter(int position, std::string_view allowed, std::string_view name);
    /// Reads `length` printable ASCII characters.
    std::string Text(int position, int length, std::string_view name);
    /// Reads a frequency from eight characters such as "154.1234". Returns Hz: 0 or in a range of the model.
    int64_t FrequencyText(int position, const DigitalModel& model, std::string_view name);
    /// Same as FrequencyText, from eight hexadecimal digits in Hz.
    int64_t FrequencyHertz(int position, const DigitalModel& model, std::string_view name);

    /// Records a failure found by the caller.
    void Refuse(int position, const std::string& reason);

private:
    int64_t InRange(int position, int64_t hertz, const DigitalModel& model, std::string_view name);

    std::string_view m_body;
    Failure m_failure;
};

/// Returns ASCII characters as pairs of hexadecimal digits.
std::string HexOfText(std::string_view text);

} // namespace Simulator
