// How a simulated radio is played.
#pragma once

#include "robot/Files.h"
#include "robot/TempFolder.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace transfertest {

/// Plays the radio with the files of a folder.
class RadioPlayer {
public:
    RadioPlayer(const std::string& model, std::vector<std::string> options, const std::string& memories)
        : m_arguments(
              {"--model", model, "--memories", MemoryFile(), "--log", LogFile(), "--key-delay", "0"}) {
        testbench::WriteFile(MemoryFile(), memories);
        m_arguments.insert(m_arguments.end(), options.begin(), options.end());
    }
    virtual ~RadioPlayer() = default;

    virtual std::string PortName() const = 0;
    virtual int SwitchOff() = 0;
    virtual std::string Complaints() const = 0;
    virtual void AwaitClosedPort() = 0;
    virtual void WhenLogged(const std::string& text, std::function<void()> action) = 0;

    std::string MemoryFile() const { return (m_folder / "memories").string(); }
    std::string LogFile() const { return (m_folder / "log").string(); }

protected:
    testbench::TempFolder m_folder{"zelk-radio"};
    std::vector<std::string> m_arguments;
};

/// Plays at a pseudo-terminal, in a process of its own, or at one of a pair of ports. One source file for
/// each operating system.
std::unique_ptr<RadioPlayer> MakeRadioProcess(const std::string& model,
                                              const std::vector<std::string>& options,
                                              const std::string& memories);

} // namespace transfertest
