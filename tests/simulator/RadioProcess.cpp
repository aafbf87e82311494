#include "tests/simulator/RadioProcess.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

std::chrono::milliseconds Left(Clock::time_point end) {
    return std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()));
}

} // namespace

TempFolder::TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zelk-radio-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no temporary folder");
    m_path = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

RadioProcess::RadioProcess(const TempFolder& folder, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {ZELK_RADIO, "--ports-dir", folder.Path("ports")});
    std::vector<char*> raw;
    for (std::string& argument : arguments)
        raw.push_back(argument.data());
    raw.push_back(nullptr);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    m_pid = fork();
    if (m_pid == 0) {
        dup2(ends[1], STDOUT_FILENO);
        dup2(ends[1], STDERR_FILENO);
        execv(raw[0], raw.data());
        _exit(127);
    }
    close(ends[1]);
    m_output = ends[0];
    ReadOutput(10s, true);
    const std::string mark = " is ready at ";
    if (const std::size_t at = m_text.find(mark); at != std::string::npos)
        m_port = m_text.substr(at + mark.size(), m_text.find('\n', at) - at - mark.size());
}

RadioProcess::~RadioProcess() {
    if (m_pid > 0) {
        Signal(SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    close(m_output);
}

void RadioProcess::ReadOutput(std::chrono::milliseconds patience, bool untilLine) {
    const auto end = Clock::now() + patience;
    while (!untilLine || m_text.find('\n') == std::string::npos) {
        pollfd output{m_output, POLLIN, 0};
        if (poll(&output, 1, static_cast<int>(Left(end).count())) <= 0)
            return;
        char buffer[4096];
        const ssize_t got = read(m_output, buffer, sizeof buffer);
        if (got <= 0)
            return;
        m_text.append(buffer, static_cast<std::size_t>(got));
    }
}

std::string RadioProcess::Output() {
    ReadOutput(0ms, false);
    return m_text;
}

void RadioProcess::Signal(int number) {
    if (m_pid > 0)
        kill(m_pid, number);
}

int RadioProcess::WaitForEnd(std::chrono::milliseconds patience) {
    const auto end = Clock::now() + patience;
    while (m_pid > 0 && Clock::now() < end) {
        int status = 0;
        if (waitpid(m_pid, &status, WNOHANG) == m_pid) {
            m_pid = -1;
            return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
        std::this_thread::sleep_for(5ms);
    }
    return -1;
}

int RadioProcess::End(int signal) {
    Signal(signal);
    return WaitForEnd();
}

std::chrono::milliseconds RadioProcess::ProcessorTime() const {
    std::istringstream fields(FileText("/proc/" + std::to_string(m_pid) + "/stat"));
    std::string word;
    long ticks = 0;
    for (int k = 1; k <= 15 && fields >> word; ++k)
        if (k >= 14)
            ticks += std::stol(word);
    return std::chrono::milliseconds(ticks * 1000 / sysconf(_SC_CLK_TCK));
}

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
            bytes.remove_prefix(static_cast<std::size_t>(put));
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
        return std::string(buffer, static_cast<std::size_t>(got));
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

std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

bool WaitForFileText(const std::string& path, std::string_view text) {
    const auto deadline = Clock::now() + 5s;
    while (Clock::now() < deadline) {
        if (FileText(path).find(text) != std::string::npos)
            return true;
        std::this_thread::sleep_for(5ms);
    }
    return false;
}

int CountOf(std::string_view text, std::string_view part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size()))
        ++count;
    return count;
}

std::string VhfLine(const std::string& number, const std::string& description) {
    return number + " " + description + " 150.0000RX 151.2500TX CTCSS: 64RX 12TX DPL: 000RX 023TX 1_3__N";
}

std::string EndLine(const std::string& word) {
    return word + std::string(74, ' ') + "\r";
}
