// A bare client of a simulated radio's port, and the lines that it sends.
#pragma once

#include "robot/Files.h"
#include "robot/RadioProcess.h"
#include "robot/TempFolder.h"
#include "tests/simulator/RadioLines.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// zelk-radio with its ports in the test's folder.
class RadioInFolder : public testbench::RadioProcess {
public:
    /// Starts it with `arguments` and a --ports-dir of `folder`/ports.
    RadioInFolder(const testbench::TempFolder& folder, std::vector<std::string> arguments);
};

/// The other side of the port, opened raw at a given speed, without any protocol.
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
    /// Everything that arrives until no byte came for `quiet`.
    std::string ReadUntilQuiet(std::chrono::milliseconds quiet);
    /// Everything that arrives until it ends in `end` or `patience` is over.
    std::string ReadUntil(std::string_view end, std::chrono::milliseconds patience = std::chrono::seconds(5));
    /// True once the device has disappeared; waits up to `patience` for that.
    bool HasVanished(std::chrono::milliseconds patience);
    void Close();

private:
    std::optional<std::string> ReadSome(std::chrono::milliseconds patience);

    int m_port = -1;
};

/// Waits until the file holds the text.
bool WaitForFileText(const std::string& path, std::string_view text);
