#include "robot/Process.h"

#include "robot/Pattern.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <set>
#include <stdexcept>

namespace testbench {

namespace {

using Clock = std::chrono::steady_clock;

std::mutex livingMutex;
std::set<pid_t>& Living() {
    static std::set<pid_t> pids;
    return pids;
}

/// This process's environment with the given entries set, as strings "NAME=value".
std::vector<std::string> Environment(const std::vector<std::pair<std::string, std::string>>& changes) {
    std::vector<std::string> entries;
    for (char** entry = environ; *entry != nullptr; entry++) {
        const std::string text = *entry;
        bool replaced = false;
        for (const auto& [name, value] : changes) {
            replaced = replaced || text.starts_with(name + "=");
        }
        if (!replaced) {
            entries.push_back(text);
        }
    }
    for (const auto& [name, value] : changes) {
        entries.push_back(name + "=" + value);
    }
    return entries;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

Process::Process(const std::vector<std::string>& command, const Options& options) {
    if (command.empty()) {
        throw std::runtime_error("no program named");
    }
    // Allocate everything before the fork: another thread may hold the heap's lock during it.
    std::vector<std::string> arguments = command;
    std::vector<std::string> entries = Environment(options.environment);
    const std::vector<char*> argv = Pointers(arguments);
    const std::vector<char*> envp = Pointers(entries);
    const std::string folder = options.folder.string();

    int input[2], output[2], failure[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, input) != 0 || pipe2(output, O_CLOEXEC) != 0 ||
        pipe2(failure, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipes for " + command[0]);
    }
    {
        std::lock_guard lock(livingMutex);
        m_pid = fork();
        if (m_pid > 0) {
            Living().insert(m_pid);
        }
    }
    if (m_pid == 0) {
        dup2(input[1], STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        dup2(output[1], STDERR_FILENO);
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        if (folder.empty() || chdir(folder.c_str()) == 0) {
            execvpe(argv[0], argv.data(), envp.data());
        }
        const int error = errno;
        [[maybe_unused]] const ssize_t written = write(failure[1], &error, sizeof error);
        _exit(127);
    }
    close(input[1]);
    close(output[1]);
    close(failure[1]);
    m_input = input[0];
    int error = 0;
    const bool failed = m_pid < 0 || read(failure[0], &error, sizeof error) == sizeof error;
    close(failure[0]);
    if (failed) {
        close(output[0]);
        close(m_input);
        if (m_pid > 0) {
            waitpid(m_pid, nullptr, 0);
            std::lock_guard lock(livingMutex);
            Living().erase(m_pid);
        }
        throw std::runtime_error("can't start " + command[0] + ": " + std::strerror(error));
    }
    m_reader = std::thread([this, fd = output[0]] { Read(fd); });
}

Process::~Process() {
    Terminate();
    CloseInput();
    {
        // A grandchild may keep the pipe open forever. With this flag the reader stops anyway.
        std::lock_guard lock(m_mutex);
        m_outputEnded = true;
    }
    m_reader.join();
}

void Process::Read(int fd) {
    char block[4096];
    while (true) {
        pollfd waited{fd, POLLIN, 0};
        const int ready = poll(&waited, 1, 50);
        if (ready > 0) {
            const ssize_t count = read(fd, block, sizeof block);
            if (count <= 0) {
                break;
            }
            std::lock_guard lock(m_mutex);
            m_output.append(block, static_cast<size_t>(count));
            m_arrived.notify_all();
        } else {
            std::lock_guard lock(m_mutex);
            if (m_outputEnded) {
                break;
            }
        }
    }
    close(fd);
    std::lock_guard lock(m_mutex);
    m_outputEnded = true;
    m_arrived.notify_all();
}

std::optional<std::string> Process::WaitForLine(const std::string& expression, int ms) {
    const auto deadline = Clock::now() + std::chrono::milliseconds(ms);
    std::unique_lock lock(m_mutex);
    size_t next = m_seen;
    while (true) {
        for (size_t end; (end = m_output.find('\n', next)) != std::string::npos; next = end + 1) {
            std::string line = m_output.substr(next, end - next);
            if (!line.empty() && line.back() == '\r') {
                line.pop_back();
            }
            if (Finds(expression, line)) {
                m_seen = end + 1;
                return line;
            }
        }
        if (m_outputEnded || m_arrived.wait_until(lock, deadline) == std::cv_status::timeout) {
            if (m_output.find('\n', next) == std::string::npos) {
                return {};
            }
        }
    }
}

bool Process::Write(const std::string& text) {
    size_t sent = 0;
    while (m_input >= 0 && sent < text.size()) {
        const ssize_t count = send(m_input, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
        if (count < 0) {
            return false;
        }
        sent += static_cast<size_t>(count);
    }
    return m_input >= 0;
}

void Process::CloseInput() {
    if (m_input >= 0) {
        close(m_input);
        m_input = -1;
    }
}

bool Process::Reap() {
    if (m_exit) {
        return true;
    }
    // The lock keeps KillAll from killing a process ID that has just been freed.
    std::lock_guard lock(livingMutex);
    int status = 0;
    if (waitpid(m_pid, &status, WNOHANG) != m_pid) {
        return false;
    }
    Living().erase(m_pid);
    m_exit = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return true;
}

std::optional<int> Process::WaitForExit(int ms) {
    const auto deadline = Clock::now() + std::chrono::milliseconds(ms);
    while (!Reap() && Clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    if (m_exit) {
        // Its last output may not have arrived yet. Don't wait long: a grandchild may keep the pipe open.
        std::unique_lock lock(m_mutex);
        m_arrived.wait_for(lock, std::chrono::milliseconds(500), [&] { return m_outputEnded; });
    }
    return m_exit;
}

int Process::Terminate() {
    Signal(SIGTERM);
    if (!WaitForExit(2000)) {
        Signal(SIGKILL);
    }
    while (!WaitForExit(1000)) {
    }
    return *m_exit;
}

void Process::Signal(int number) {
    if (!Reap()) {
        kill(m_pid, number);
    }
}

bool Process::IsRunning() {
    return !Reap();
}

std::string Process::Output() const {
    std::lock_guard lock(m_mutex);
    return m_output;
}

void Process::KillAll() {
    std::lock_guard lock(livingMutex);
    for (const pid_t pid : Living()) {
        kill(pid, SIGKILL);
    }
}

} // namespace testbench
