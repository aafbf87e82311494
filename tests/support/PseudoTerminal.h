// A pseudo-terminal pair for tests: the program opens the slave side, the test acts as the device.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

/// One pseudo-terminal. Its slave side has a device name and the program under test opens it like a
/// serial port; the master side belongs to the test. Raw from the start: nothing is echoed or translated.
class PseudoTerminal {
public:
    using Milliseconds = std::chrono::milliseconds;

    /// @throws std::runtime_error if the system has no pseudo-terminal available
    PseudoTerminal() : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
        char name[128] = "";
        if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0 ||
            ptsname_r(m_master, name, sizeof name) != 0)
            throw std::runtime_error("no pseudo-terminal");
        m_slaveName = name;
        termios settings = Settings(); // a call on the master reaches the slave's settings
        cfmakeraw(&settings);
        tcsetattr(m_master, TCSANOW, &settings);
    }

    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    ~PseudoTerminal() {
        CloseMaster();
        ReleaseSlave();
    }

    /// Device name of the slave side.
    const std::string& SlaveName() const { return m_slaveName; }

    /// Removes the device, as if its plug were pulled.
    void CloseMaster() { CloseDescriptor(m_master); }

    /// Opens the slave side for the test too, so that the pair outlives the program's use of it. Not a lock.
    void HoldSlave() {
        if (m_slave < 0)
            m_slave = ::open(m_slaveName.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        if (m_slave < 0)
            throw std::runtime_error("the slave side can't be opened");
    }
    void ReleaseSlave() { CloseDescriptor(m_slave); }

    /// Bytes written by the test that the program has not read yet. Needs HoldSlave().
    int UnreadBytes() const {
        int count = -1;
        ioctl(m_slave, FIONREAD, &count);
        return count;
    }

    /// Stops the program's output, as a device does with flow control, or lets it continue. Needs
    /// HoldSlave().
    void HoldBack(bool stop) { tcflow(m_slave, stop ? TCOOFF : TCOON); }

    /// Sends bytes to the program. Returns false if not all were accepted by the deadline.
    bool Write(std::string_view data, Milliseconds limit = Milliseconds(10000)) {
        const auto deadline = Clock::now() + limit;
        while (!data.empty()) {
            const ssize_t written = ::write(m_master, data.data(), data.size());
            if (written > 0)
                data.remove_prefix(static_cast<size_t>(written));
            else if (!WaitFor(POLLOUT, deadline))
                return false;
        }
        return true;
    }

    /// Receives `count` bytes from the program, or those that arrived by the deadline.
    std::string Read(size_t count, Milliseconds limit = Milliseconds(10000)) {
        return Collect(limit, count, [count](const std::string& text) { return text.size() >= count; });
    }

    /// Receives up to and including the terminator, or what arrived by the deadline. Reads nothing beyond it.
    std::string ReadUntil(char terminator, Milliseconds limit = Milliseconds(10000)) {
        return Collect(limit, 0, [terminator](const std::string& text) {
            return !text.empty() && text.back() == terminator;
        });
    }

    /// The program's current line settings.
    termios Settings() const {
        termios settings{};
        tcgetattr(m_master, &settings);
        return settings;
    }

    /// The program's current speed, one of the B constants of termios.
    speed_t Speed() const {
        const termios settings = Settings();
        return cfgetospeed(&settings);
    }

    /// The master's descriptor, -1 once it is closed.
    int Master() const { return m_master; }

private:
    using Clock = std::chrono::steady_clock;

    static void CloseDescriptor(int& descriptor) {
        if (descriptor >= 0)
            ::close(descriptor);
        descriptor = -1;
    }

    // With a `count`, reads all missing bytes at once, otherwise byte by byte.
    template <typename Done>
    std::string Collect(Milliseconds limit, size_t count, Done done) {
        const auto deadline = Clock::now() + limit;
        std::string text;
        char buffer[4096];
        while (!done(text)) {
            const size_t wanted = count > text.size() ? std::min(count - text.size(), sizeof buffer) : 1;
            const ssize_t got = ::read(m_master, buffer, wanted);
            if (got > 0)
                text.append(buffer, static_cast<size_t>(got));
            else if (!WaitFor(POLLIN, deadline))
                break;
        }
        return text;
    }

    // Returns false once the deadline is past. While no one has the slave side open, poll returns at once.
    bool WaitFor(short events, Clock::time_point deadline) const {
        const auto left = std::chrono::duration_cast<Milliseconds>(deadline - Clock::now()).count();
        if (left <= 0)
            return false;
        pollfd entry{m_master, events, 0};
        poll(&entry, 1, static_cast<int>(std::min<long>(left, 100)));
        if (!(entry.revents & events))
            std::this_thread::sleep_for(Milliseconds(1));
        return true;
    }

    int m_master = -1;
    int m_slave = -1;
    std::string m_slaveName;
};
