// How a simulated radio is played.
#pragma once

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/transfer/RadioUnderTest.h"

#include <functional>
#include <string>
#include <vector>

namespace transfertest {

/// Plays the radio with the files of a folder.
class RadioUnderTest::Player {
public:
    Player(const std::string& model, std::vector<std::string> options, const std::string& memories)
        : m_arguments(
              {"--model", model, "--memories", MemoryFile(), "--log", LogFile(), "--key-delay", "0"}) {
        testbench::WriteFile(MemoryFile(), memories);
        m_arguments.insert(m_arguments.end(), options.begin(), options.end());
    }
    virtual ~Player() = default;

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

} // namespace transfertest
