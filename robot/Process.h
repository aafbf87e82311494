// Child process whose output can be watched line by line.
#pragma once

#include <sys/types.h>

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace testbench {

/// Runs a program for the lifetime of the object. Keeps its standard output and error, in order of arrival.
/// Use from any thread, but only one at a time.
class Process {
public:
    struct Options {
        std::filesystem::path folder = {}; ///< working directory; empty: that of this process
        std::vector<std::pair<std::string, std::string>> environment =
            {}; ///< set on top of the inherited ones
    };

    /// Starts `command[0]` (looked up in PATH if it has no slash) with the rest of `command` as arguments.
    /// Throws std::runtime_error if it can't be started.
    explicit Process(const std::vector<std::string>& command) : Process(command, Options{}) {}
    Process(const std::vector<std::string>& command, const Options& options);
    /// Ends the program if it still runs, as Terminate does.
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Returns the next complete line, without its line end, that contains a match of the regular
    /// expression. Searches after the line that the last successful call returned. Returns nothing if none
    /// arrives within `ms` or before the program ends.
    std::optional<std::string> WaitForLine(const std::string& expression, int ms = 10000);

    /// Sends text to the program's standard input. Returns false if the input is closed.
    bool Write(const std::string& text);
    void CloseInput();

    /// Returns the exit code, or 128 + signal number if a signal ended the program; nothing if it still runs
    /// after `ms`. Once this returns a code, Output() is complete.
    std::optional<int> WaitForExit(int ms = 10000);

    /// Sends SIGTERM, and SIGKILL if the program still runs two seconds later. Returns the exit code as
    /// WaitForExit does.
    int Terminate();

    /// Sends a signal; does nothing if the program has ended.
    void Signal(int number);

    bool IsRunning();
    pid_t Pid() const { return m_pid; }

    /// All output so far.
    std::string Output() const;

    /// Kills the programs of all objects, for a test program that is about to abort.
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
