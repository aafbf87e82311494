// A simulated radio that runs as a separate program.
#pragma once

#include "robot/Files.h"
#include "robot/RadioProcess.h"
#include "robot/TempFolder.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace transfertest {

/// Runs one radio from its start to the end of the object. Its memories can be read once it has ended.
class RadioUnderTest {
public:
    /// model as zelk-radio accepts it, such as "KRV-650:FM 138-174"; memories are its initial lines.
    explicit RadioUnderTest(const std::string& model, const std::vector<std::string>& options = {},
                            const std::string& memories = "") {
        testbench::WriteFile(MemoryFile(), memories);
        std::vector<std::string> arguments = {
            "--model", model,   "--memories", MemoryFile(), "--ports-dir", m_folder / "ports",
            "--name",  "radio", "--log",      LogFile(),    "--key-delay", "0"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        m_process = std::make_unique<testbench::RadioProcess>(ZELK_RADIO, arguments);
        m_process->RequireReady();
    }

    std::string PortName() const { return (m_folder / "ports" / "radio").string(); }

    /// Switches the radio off and returns its exit code. A digital radio's code is 3 if it refused something.
    int SwitchOff() { return m_process->Terminate(); }

    /// Switches the radio off. Returns its memory lines by number, their first three characters.
    std::map<std::string, std::string> Memories() {
        std::map<std::string, std::string> memories;
        for (const std::string& line : MemoryLines())
            memories[line.substr(0, 3)] = line;
        return memories;
    }

    /// Switches a digital radio off. Returns its records by their address, with their layout: "1 T143..." or
    /// "2 T143...".
    std::map<int, std::string> Records() {
        std::map<int, std::string> records;
        for (const std::string& line : MemoryLines())
            records[std::stoi(line.substr(6, 4), nullptr, 16)] = line;
        return records;
    }

    /// Everything that the radio has received and sent so far, one event a line.
    std::string Log() const { return testbench::ReadFileIfAny(LogFile()); }

    /// Waits until the log contains that text, for ten seconds at most.
    void AwaitInLog(const std::string& text) const {
        for (int tries = 0; tries < 1000 && Log().find(text) == std::string::npos; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }

    /// Everything that the radio has complained about: what a real one would have refused or not understood.
    std::string Complaints() const {
        std::string complaints;
        std::istringstream output(m_process->Output());
        for (std::string line; std::getline(output, line);)
            if (line.find("is ready at") == std::string::npos)
                complaints += line + "\n";
        return complaints;
    }

    /// Waits until the radio has noticed that its port was closed, or has ended.
    void AwaitClosedPort() {
        for (int tries = 0; tries < 500 && m_process->IsRunning() && !Log().ends_with("port closed\n");
             ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }

    /// Waits for a radio that ends by itself.
    void AwaitEnd() { m_process->WaitForExit(); }

private:
    std::string MemoryFile() const { return (m_folder / "memories").string(); }
    std::string LogFile() const { return (m_folder / "log").string(); }

    std::vector<std::string> MemoryLines() {
        SwitchOff();
        std::vector<std::string> lines;
        for (const std::string& line : testbench::ReadLines(MemoryFile()))
            if (!line.empty() && line[0] != '#')
                lines.push_back(line);
        return lines;
    }

    testbench::TempFolder m_folder{"zelk-radio"};
    std::unique_ptr<testbench::RadioProcess> m_process;
};

} // namespace transfertest
