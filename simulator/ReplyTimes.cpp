#include "simulator/ReplyTimes.h"

#include "simulator/SystemFiles.h"

#include <cerrno>
#include <cstring>

namespace Simulator {

Failure ReplyTimes::Open(const std::string& path) {
    m_file.reset(OpenFile(path, "wb"));
    if (!m_file)
        return path + ": " + std::strerror(errno);
    return {};
}

void ReplyTimes::Heard(TimePoint now) {
    if (m_file && m_sent) {
        const std::chrono::duration<double, std::micro> passed = now - *m_sent;
        std::fprintf(m_file.get(), "%.1f\n", passed.count());
        std::fflush(m_file.get());
    }
    m_sent.reset();
}

} // namespace Simulator
