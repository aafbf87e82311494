// A simulated radio that runs as a program of its own.
#pragma once

#include "tests/support/robot/Process.h"
#include "tests/support/robot/TempFolder.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace transfertest {

/// Plays one radio from its start to the end of the object. Its memories can be asked for when it has ended.
class RadioUnderTest {
public:
    /// model as zelk-radio takes it, such as "KRV-650:FM 138-174"; memories are lines that it starts with.
    explicit RadioUnderTest(const std::string& model, const std::vector<std::string>& options = {},
                            const std::string& memories = "") {
        std::ofstream(MemoryFile()) << memories;
        std::vector<std::string> command = {ZELK_RADIO,
                                            "--model",
                                            model,
                                            "--memories",
                                            MemoryFile(),
                                            "--ports-dir",
                                            (m_folder / "ports").string(),
                                            "--name",
                                            "radio",
                                            "--key-delay",
                                            "0"};
        command.insert(command.end(), options.begin(), options.end());
        m_process = std::make_unique<testbench::Process>(command);
        if (!m_process->WaitForLine("is ready at"))
            throw std::runtime_error("the simulated radio did not start: " + m_process->Output());
    }

    std::string PortName() const { return (m_folder / "ports" / "radio").string(); }

    /// Switches the radio off. What it then holds, by number: the line's first three characters.
    std::map<std::string, std::string> Memories() {
        m_process->Terminate();
        std::map<std::string, std::string> memories;
        std::ifstream file(MemoryFile());
        for (std::string line; std::getline(file, line);)
            if (!line.empty() && line[0] != '#')
                memories[line.substr(0, 3)] = line;
        return memories;
    }

    /// What the radio has complained about: whatever a real one would have refused or not understood.
    std::string Complaints() const {
        std::string complaints;
        std::istringstream output(m_process->Output());
        for (std::string line; std::getline(output, line);)
            if (line.find("is ready at") == std::string::npos)
                complaints += line + "\n";
        return complaints;
    }

    /// Waits for the end of a radio that ends by itself.
    void AwaitEnd() { m_process->WaitForExit(); }

private:
    std::string MemoryFile() const { return (m_folder / "memories").string(); }

    testbench::TempFolder m_folder{"zelk-radio"};
    std::unique_ptr<testbench::Process> m_process;
};

} // namespace transfertest
