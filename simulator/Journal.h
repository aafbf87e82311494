// Log of a simulated radio: every line on the wire with its time.
#pragma once

#include "simulator/BaudClock.h"
#include "simulator/Result.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace Simulator {

/// Writes one line per event: milliseconds since the start, then the text. By convention, "<" begins input of
/// the radio, ">" its output, "!" a played fault, "?" a refusal, "-" anything else.
class Journal {
public:
    /// A journal without a file: only complaints are written, to standard error.
    Journal() = default;
    virtual ~Journal() = default;

    /// Creates or empties the file.
    [[nodiscard]] Failure Open(const std::string& path);

    /// Writes a line. Bytes that aren't printable ASCII are written as \xNN.
    virtual void Note(std::string_view text);
    /// Writes a line marked "?", also to standard error.
    virtual void Complain(std::string_view text);

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::unique_ptr<std::FILE, Close> m_file;
    TimePoint m_start = Clock::now();
};

} // namespace Simulator
