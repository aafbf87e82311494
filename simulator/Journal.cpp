#include "simulator/Journal.h"

#include "simulator/SystemFiles.h"

#include <cerrno>
#include <cstring>

namespace Simulator {

namespace {

std::string Printable(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        if (c >= ' ' && c <= '~') {
            shown += c;
            continue;
        }
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned char>(c));
        shown += escaped;
    }
    return shown;
}

} // namespace

Failure Journal::Open(const std::string& path) {
    m_file.reset(OpenFile(path, "wb"));
    if (!m_file)
        return path + ": " + std::strerror(errno);
    return {};
}

void Journal::Note(std::string_view text) {
    if (!m_file)
        return;
    const long long passed =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_start).count();
    std::fprintf(m_file.get(), "%8lld %s\n", passed, Printable(text).c_str());
    std::fflush(m_file.get());
}

void Journal::Complain(std::string_view text) {
    Note("? " + std::string(text));
    std::fprintf(stderr, "zelk-radio: %s\n", Printable(text).c_str());
}

} // namespace Simulator
