#include "tests/frame/StartedProgram.h"

#include <wx/string.h>

#include <windows.h>

#include <stdexcept>

namespace testbench {

namespace {

/// Ends its processes with this program, also when that aborts.
HANDLE Job() {
    static const HANDLE job = [] {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        const HANDLE made = CreateJobObjectW(nullptr, nullptr);
        SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limits, sizeof limits);
        return made;
    }();
    return job;
}

} // namespace

/// A process of the system, ended with the object.
class StartedProgram::Started {
public:
    explicit Started(const PROCESS_INFORMATION& started) : m_process(started.hProcess) {
        AssignProcessToJobObject(Job(), m_process);
        CloseHandle(started.hThread);
    }
    ~Started() {
        TerminateProcess(m_process, 1);
        // Its working folder can't be removed before that.
        WaitForSingleObject(m_process, INFINITE);
        CloseHandle(m_process);
    }
    Started(const Started&) = delete;
    Started& operator=(const Started&) = delete;

    bool IsRunning() const { return WaitForSingleObject(m_process, 0) == WAIT_TIMEOUT; }

private:
    HANDLE m_process;
};

StartedProgram::StartedProgram(const std::filesystem::path& program,
                               const std::vector<std::string>& arguments,
                               const std::filesystem::path& folder) {
    // No argument of a test has quotes or ends with a backslash.
    std::wstring line = L"\"" + program.wstring() + L"\"";
    for (const std::string& argument : arguments)
        line += L" \"" + wxString::FromUTF8(argument).ToStdWstring() + L"\"";
    STARTUPINFOW info{};
    info.cb = sizeof info;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        folder.empty() ? nullptr : folder.c_str(), &info, &started))
        throw std::runtime_error("can't start " + program.string());
    m_started = std::make_unique<Started>(started);
}

StartedProgram::~StartedProgram() = default;

bool StartedProgram::IsRunning() {
    return m_started->IsRunning();
}

} // namespace testbench
