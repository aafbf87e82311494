// A child process whose output can be watched line by line.
#pragma once

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <sys/types.h>
#include <thread>
#include <utility>
#include <vector>

namespace testbench {

/// Starts a program and ends it with the object. What it writes to its standard output and error is
/// kept, in the order of arrival. May be used from any thread, but by one thread at a time.
class Process {
public:
    struct Options {
        std::filesystem::path folder = {}; ///< starts here; empty: where we are
        std::vector<std::pair<std::string, std::string>> environment = {}; ///< set on top of ours
    };

    /// Starts `command[0]` (looked up in PATH if it has no slash) with the rest as arguments.
    /// Throws std::runtime_error if it can't be started.
    explicit Process(const std::vector<std::string>& command) : Process(command, Options{}) {}
    Process(const std::vector<std::string>& command, const Options& options);
    /// Ends the program if it still runs: asked first, forced two seconds later.
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// The next whole line (without its line end) in which the regular expression is found, counted
    /// from behind the line that the last successful call gave. Nothing if none came within `ms`, or
    /// the program ended without one.
    std::optional<std::string> WaitForLine(const std::string& expression, int ms = 10000);

    /// Sends text to the program's standard input. False if the program no longer listens.
    bool Write(const std::string& text);
    void CloseInput();

    /// The exit code, 128 + signal number if a signal ended it; nothing if it still runs after `ms`.
    /// After an end Output() is complete.
    std::optional<int> WaitForExit(int ms = 10000);

    /// Sends SIGTERM, two seconds later SIGKILL, and gives the exit code as WaitForExit does.
    int Terminate();

    /// Sends a signal; nothing happens if the program has ended.
    void Signal(int number);

    bool IsRunning();
    pid_t Pid() const { return m_pid; }

    /// All output so far.
    std::string Output() const;

    /// Kills the children of all objects at once, for a test program that is about to abort.
    static void KillAll();

private:
    void Read(int fd);
    bool Reap();

    pid_t m_pid = -1;
    int m_input = -1;
    std::optional<int> m_exit;
    std::thread m_reader;
    mutable std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::string m_output;
    size_t m_seen = 0;
    bool m_outputEnded = false;
};

} // namespace testbench
