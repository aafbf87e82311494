#include "tests/simulator/PortClient.h"

#include "tests/support/Places.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

std::chrono::milliseconds Left(Clock::time_point end) {
    return std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()));
}

} // namespace

RadioInFolder::RadioInFolder(const testbench::TempFolder& folder, std::vector<std::string> arguments)
    : RadioProcess(testbench::RadioProgram(), [&] {
          arguments.insert(arguments.begin(), {"--ports-dir", folder / "ports"});
          return arguments;
      }()) {}

PortClient::PortClient(const std::string& port, int baud) {
    m_port = open(port.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_port < 0)
        return;
    SetSpeed(baud);
}

void PortClient::SetSpeed(int baud) {
    termios line{};
    tcgetattr(m_port, &line);
    cfmakeraw(&line);
    cfsetspeed(&line, baud == 115200 ? B115200 : B9600);
    tcsetattr(m_port, TCSANOW, &line);
}

PortClient::~PortClient() {
    Close();
}

void PortClient::Close() {
    if (m_port >= 0)
        close(m_port);
    m_port = -1;
}

void PortClient::Send(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = write(m_port, bytes.data(), bytes.size());
        if (put > 0) {
            bytes.remove_prefix(static_cast<size_t>(put));
            continue;
        }
        pollfd room{m_port, POLLOUT, 0};
        if (poll(&room, 1, 5000) <= 0 || !(room.revents & POLLOUT))
            throw std::runtime_error("the port takes nothing");
    }
}

std::optional<std::string> PortClient::ReadSome(std::chrono::milliseconds patience) {
    pollfd port{m_port, POLLIN, 0};
    if (poll(&port, 1, static_cast<int>(patience.count())) <= 0)
        return std::string();
    char buffer[4096];
    const ssize_t got = read(m_port, buffer, sizeof buffer);
    if (got > 0)
        return std::string(buffer, static_cast<size_t>(got));
    if (got < 0 && errno == EAGAIN)
        return std::string();
    return std::nullopt;
}

std::string PortClient::ReadUntilQuiet(std::chrono::milliseconds quiet) {
    std::string all;
    for (;;) {
        const auto some = ReadSome(quiet);
        if (!some || some->empty())
            return all;
        all += *some;
    }
}

std::string PortClient::ReadUntil(std::string_view end, std::chrono::milliseconds patience) {
    const auto deadline = Clock::now() + patience;
    std::string all;
    while (!all.ends_with(end) && Clock::now() < deadline) {
        const auto some = ReadSome(Left(deadline));
        if (!some)
            return all;
        all += *some;
    }
    return all;
}

bool PortClient::HasVanished(std::chrono::milliseconds patience) {
    const auto deadline = Clock::now() + patience;
    while (Clock::now() < deadline)
        if (!ReadSome(Left(deadline)))
            return true;
    return false;
}

bool WaitForFileText(const std::string& path, std::string_view text) {
    const auto deadline = Clock::now() + 5s;
    while (Clock::now() < deadline) {
        if (testbench::ReadFileIfAny(path).find(text) != std::string::npos)
            return true;
        std::this_thread::sleep_for(5ms);
    }
    return false;
}
