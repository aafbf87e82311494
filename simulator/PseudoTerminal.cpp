#include "simulator/PseudoTerminal.h"

#include "simulator/Rates_linux.h"
#include "simulator/WaitForPort_linux.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace Simulator {

namespace {

constexpr int UsualBaud = 9600;

[[noreturn]] void Fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

} // namespace

PseudoTerminal::PseudoTerminal() {
    m_master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (m_master < 0)
        Fail("no pseudo-terminal");
    char name[128];
    if (grantpt(m_master) != 0 || unlockpt(m_master) != 0 || ptsname_r(m_master, name, sizeof name) != 0) {
        close(m_master);
        Fail("pseudo-terminal can't be set up");
    }
    m_device = name;
    fcntl(m_master, F_SETFL, fcntl(m_master, F_GETFL) | O_NONBLOCK);
    m_watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (m_watch < 0 || inotify_add_watch(m_watch, name, IN_OPEN | IN_CLOSE) < 0) {
        const int error = errno;
        close(m_master);
        if (m_watch >= 0)
            close(m_watch);
        errno = error;
        Fail("pseudo-terminal can't be watched");
    }
    Flush();
}

PseudoTerminal::~PseudoTerminal() {
    close(m_master);
    close(m_watch);
}

PseudoTerminal::Visit PseudoTerminal::TakeVisits() {
    Visit visit;
    alignas(inotify_event) char buffer[4096];
    for (;;) {
        const ssize_t got = read(m_watch, buffer, sizeof buffer);
        if (got <= 0)
            return visit;
        for (ssize_t at = 0; at < got;) {
            inotify_event event;
            std::memcpy(&event, buffer + at, sizeof event);
            at += static_cast<ssize_t>(sizeof event) + event.len;
            if (event.mask & IN_OPEN) {
                ++m_users;
                visit.opened = true;
            }
            if ((event.mask & IN_CLOSE) && m_users > 0 && --m_users == 0)
                visit.closed = true;
            if (event.mask & IN_Q_OVERFLOW) {
                // Events were lost, so the count is wrong. The hang-up state shows if the port is open.
                pollfd line{m_master, 0, 0};
                poll(&line, 1, 0);
                m_users = line.revents & POLLHUP ? 0 : 1;
                visit.closed = true;
            }
        }
    }
}

void PseudoTerminal::Wait(Wanted wanted, std::optional<TimePoint> due, const Requests& requests) {
    // While the other side is closed, the port constantly reports a hang-up; only the watch reports an open.
    WaitForPort(IsOpen() ? m_master : -1, wanted, m_watch, due, requests);
}

std::string PseudoTerminal::Read(size_t limit) {
    std::string bytes(limit, '\0');
    ssize_t got;
    do {
        got = read(m_master, bytes.data(), bytes.size());
    } while (got < 0 && errno == EINTR);
    bytes.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return bytes;
}

size_t PseudoTerminal::Write(std::string_view bytes) {
    const ssize_t put = write(m_master, bytes.data(), bytes.size());
    if (put >= 0)
        return static_cast<size_t>(put);
    return errno == EAGAIN || errno == EINTR ? 0 : bytes.size();
}

int PseudoTerminal::Speed() const {
    termios line{};
    if (tcgetattr(m_master, &line) == 0)
        for (const Rate& rate : Rates)
            if (rate.code == cfgetospeed(&line))
                return rate.baud;
    return UsualBaud;
}

void PseudoTerminal::Flush() {
    // TCOFLUSH discards bytes in transit between the two sides, but not the other side's unread input.
    // TCSAFLUSH discards that: settings made here apply to the other side.
    tcflush(m_master, TCOFLUSH);
    termios line{};
    if (tcgetattr(m_master, &line) != 0)
        return;
    if (!IsOpen()) {
        cfmakeraw(&line);
        line.c_cflag |= CREAD | CLOCAL;
        cfsetspeed(&line, B9600);
    }
    tcsetattr(m_master, TCSAFLUSH, &line);
}

} // namespace Simulator
