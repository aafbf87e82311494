#include "robot/RadioProcess.h"

#include "robot/Files.h"

#include <unistd.h>

#include <sstream>
#include <stdexcept>

namespace testbench {

namespace {

std::vector<std::string> Command(const std::filesystem::path& program,
                                 const std::vector<std::string>& arguments) {
    std::vector<std::string> command{program.string()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

} // namespace

RadioProcess::RadioProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                           const Options& options)
    : Process(Command(program, arguments), options) {
    const std::string mark = " is ready at ";
    if (const auto line = WaitForLine(mark))
        m_port = line->substr(line->find(mark) + mark.size());
}

void RadioProcess::RequireReady() const {
    if (m_port.empty())
        throw std::runtime_error("the simulated radio did not start: " + Output());
}

std::chrono::milliseconds RadioProcess::ProcessorTime() const {
    // Fields 14 and 15: clock ticks in user mode and in kernel mode.
    std::istringstream fields(ReadFile("/proc/" + std::to_string(Pid()) + "/stat"));
    std::string word;
    long ticks = 0;
    for (int k = 1; k <= 15 && fields >> word; ++k)
        if (k >= 14)
            ticks += std::stol(word);
    return std::chrono::milliseconds(ticks * 1000 / sysconf(_SC_CLK_TCK));
}

} // namespace testbench
