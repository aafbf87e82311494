#include "robot/Process.h"
#include "tests/frame/StartedProgram.h"

namespace testbench {

namespace {

std::vector<std::string> Command(const std::filesystem::path& program,
                                 const std::vector<std::string>& arguments) {
    std::vector<std::string> command{program.string()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

} // namespace

class StartedProgram::Started : public Process {
public:
    using Process::Process;
};

StartedProgram::StartedProgram(const std::filesystem::path& program,
                               const std::vector<std::string>& arguments, const std::filesystem::path& folder)
    : m_started(std::make_unique<Started>(Command(program, arguments), Process::Options{.folder = folder})) {}

StartedProgram::~StartedProgram() = default;

bool StartedProgram::IsRunning() {
    return m_started->IsRunning();
}

} // namespace testbench
