#include "robot/RadioProcess.h"
#include "tests/support/Places.h"
#include "tests/transfer/RadioPlayer.h"

#include <chrono>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace transfertest {

namespace {

/// In a process of its own, at a pseudo-terminal.
class ProcessPlayer : public RadioPlayer {
public:
    ProcessPlayer(const std::string& model, const std::vector<std::string>& options,
                  const std::string& memories)
        : RadioPlayer(model, options, memories) {
        m_arguments.insert(m_arguments.end(), {"--ports-dir", m_folder / "ports", "--name", "radio"});
        m_process.emplace(testbench::RadioProgram(), m_arguments);
        m_process->RequireReady();
    }

    std::string PortName() const override { return (m_folder / "ports" / "radio").string(); }
    int SwitchOff() override { return m_process->Terminate(); }

    std::string Complaints() const override {
        std::string complaints;
        std::istringstream output(m_process->Output());
        for (std::string line; std::getline(output, line);)
            if (line.find("is ready at") == std::string::npos)
                complaints += line + "\n";
        return complaints;
    }

    void AwaitClosedPort() override {
        for (int tries = 0; tries < 500 && m_process->IsRunning() &&
                            !testbench::ReadFileIfAny(LogFile()).ends_with("port closed\n");
             ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }

    void WhenLogged(const std::string&, std::function<void()>) override {
        throw std::logic_error("only in virtual time");
    }

private:
    std::optional<testbench::RadioProcess> m_process;
};

} // namespace

std::unique_ptr<RadioPlayer> MakeRadioProcess(const std::string& model,
                                              const std::vector<std::string>& options,
                                              const std::string& memories) {
    return std::make_unique<ProcessPlayer>(model, options, memories);
}

} // namespace transfertest
