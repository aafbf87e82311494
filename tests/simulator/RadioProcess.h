// A running zelk-radio and a bare client of its port.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

/// A folder of its own that goes with the object.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string Path(const std::string& name) const { return m_path + "/" + name; }
    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

/// zelk-radio as a child process. It is ended with the object.
class RadioProcess {
public:
    /// Starts it with `arguments` and a --ports-dir of `folder`/ports, and waits until it is ready or has
    /// ended.
    RadioProcess(const TempFolder& folder, std::vector<std::string> arguments);
    ~RadioProcess();
    RadioProcess(const RadioProcess&) = delete;
    RadioProcess& operator=(const RadioProcess&) = delete;

    /// The link that it said to be ready at; empty if it ended instead.
    const std::string& Port() const { return m_port; }
    /// What it has written to both outputs so far.
    std::string Output();
    void Signal(int number);
    /// Its exit code once it has ended by itself; -1 after `patience`, or when a signal killed it.
    int WaitForEnd(std::chrono::milliseconds patience = std::chrono::seconds(5));
    /// Sends the signal and waits.
    int End(int signal);
    /// Processor time that it has used.
    std::chrono::milliseconds ProcessorTime() const;

private:
    void ReadOutput(std::chrono::milliseconds patience, bool untilLine);

    pid_t m_pid = -1;
    int m_output = -1;
    std::string m_text;
    std::string m_port;
};

/// The other side of the port, opened raw at a speed, without any protocol.
class PortClient {
public:
    explicit PortClient(const std::string& port, int baud = 9600);
    ~PortClient();
    PortClient(const PortClient&) = delete;
    PortClient& operator=(const PortClient&) = delete;

    bool IsOpen() const { return m_port >= 0; }
    /// Changes the speed of the open port, 9600 or 115200 baud.
    void SetSpeed(int baud);
    void Send(std::string_view bytes);
    /// Everything that arrives until `quiet` has passed without a byte.
    std::string ReadUntilQuiet(std::chrono::milliseconds quiet);
    /// Everything that arrives until it ends in `end`, or `patience` is over.
    std::string ReadUntil(std::string_view end, std::chrono::milliseconds patience = std::chrono::seconds(5));
    /// True once the device has gone; waits up to `patience` for that.
    bool HasVanished(std::chrono::milliseconds patience);
    void Close();

private:
    std::optional<std::string> ReadSome(std::chrono::milliseconds patience);

    int m_port = -1;
};

/// The text of a file; empty if there is none.
std::string FileText(const std::string& path);
/// Waits until the file holds the text.
bool WaitForFileText(const std::string& path, std::string_view text);
/// How often `part` stands in `text`.
int CountOf(std::string_view text, std::string_view part);
/// A good memory line of the band FM 138-174, without its end.
std::string VhfLine(const std::string& number, const std::string& description = "TOWER1   ");
/// The end line as a program sends it, with its carriage return.
std::string EndLine(const std::string& word);
