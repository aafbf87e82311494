// How long a simulated radio waits for the program after its own answers.
#pragma once

#include "simulator/BaudClock.h"
#include "simulator/Result.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace Simulator {

/// Writes a line for each of the radio's answers: the microseconds from its last byte to the next byte from
/// the program. Does nothing without a file.
class ReplyTimes {
public:
    /// Creates or empties the file.
    [[nodiscard]] Failure Open(const std::string& path);

    /// Call when the radio sends bytes, before the program can have them.
    void Sent(TimePoint now) { m_sent = now; }
    /// Call when bytes have come from the program.
    void Heard(TimePoint now);
    /// Forgets the last answer: its receiver has gone.
    void Forget() { m_sent.reset(); }

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::unique_ptr<std::FILE, Close> m_file;
    std::optional<TimePoint> m_sent;
};

} // namespace Simulator
