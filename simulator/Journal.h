// The log of a simulated radio: every line on the wire with its time.
#pragma once

#include "simulator/BaudClock.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace Simulator {

/// Writes one line an event: milliseconds since the start, then the text. By convention "<" is what the
/// radio heard, ">" what it said, "!" a fault played, "?" what it refused, "-" anything else.
class Journal {
public:
    /// A journal that writes nothing but complaints.
    Journal() = default;

    /// Begins the file anew. Answers false with the reason in `trouble` if it can't be written.
    bool Open(const std::string& path, std::string& trouble);

    /// Bytes that aren't printable ASCII are shown as \xNN.
    void Note(std::string_view text);
    /// The same, marked "?", and to the standard error output as well.
    void Complain(std::string_view text);

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::unique_ptr<std::FILE, Close> m_file;
    TimePoint m_start = Clock::now();
};

} // namespace Simulator
