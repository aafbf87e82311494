#include "simulator/Rates_linux.h"
#include "simulator/Requests_linux.h"
#include "simulator/SerialPort.h"
#include "simulator/WaitForPort_linux.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace Simulator {

struct SerialPort::System {
    int device = -1;
};

SerialPort::SerialPort(const std::string& name) : m_name(name), m_system(std::make_unique<System>()) {
    const auto Fail = [&](const std::string& why) {
        if (m_system->device >= 0)
            close(m_system->device);
        throw std::runtime_error(name + ": " + why);
    };
    m_system->device = open(name.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_system->device < 0)
        Fail(std::strerror(errno));
    termios line{};
    if (tcgetattr(m_system->device, &line) != 0)
        Fail("this is no serial port");
    // Programs that open ports take this lock. The other one also keeps those out that know no locks.
    if (flock(m_system->device, LOCK_EX | LOCK_NB) != 0)
        Fail("another program has this port open");
    ioctl(m_system->device, TIOCEXCL);
    cfmakeraw(&line);
    line.c_cflag |= CREAD | CLOCAL;
    line.c_cflag &= ~(CSTOPB | CRTSCTS);
    line.c_cc[VMIN] = 1;
    line.c_cc[VTIME] = 0;
    cfsetspeed(&line, B9600);
    if (tcsetattr(m_system->device, TCSANOW, &line) != 0)
        Fail(std::strerror(errno));
    tcflush(m_system->device, TCIOFLUSH);
}

SerialPort::~SerialPort() {
    ioctl(m_system->device, TIOCNXCL);
    close(m_system->device);
}

void SerialPort::Wait(Wanted wanted, std::optional<TimePoint> due, const Requests& requests) {
    WaitForPort(m_system->device, wanted, -1, due, requests);
}

std::string SerialPort::Read(size_t limit) {
    std::string bytes(limit, '\0');
    const ssize_t got = read(m_system->device, bytes.data(), bytes.size());
    // Without a device, reading ends or fails at once, for ever.
    if (got == 0 || (got < 0 && errno != EAGAIN && errno != EINTR))
        m_lost = m_name + " has gone";
    bytes.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return bytes;
}

size_t SerialPort::Write(std::string_view bytes) {
    const ssize_t put = write(m_system->device, bytes.data(), bytes.size());
    if (put >= 0)
        return static_cast<size_t>(put);
    if (errno == EAGAIN || errno == EINTR)
        return 0;
    m_lost = m_name + " has gone";
    return bytes.size();
}

void SerialPort::SetSpeed(int baud) {
    termios line{};
    if (baud == m_speed || tcgetattr(m_system->device, &line) != 0)
        return;
    for (const Rate& rate : Rates)
        if (rate.baud == baud && cfsetspeed(&line, rate.code) == 0 &&
            tcsetattr(m_system->device, TCSADRAIN, &line) == 0)
            m_speed = baud;
}

} // namespace Simulator
