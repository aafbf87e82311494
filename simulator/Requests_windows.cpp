#include "simulator/Requests_windows.h"

#include <atomic>
#include <stdexcept>

namespace Simulator {

namespace {

// The system calls the handler in a thread of its own, without an argument of ours.
std::atomic<Requests::System*> Current;

BOOL WINAPI OnConsoleEvent(DWORD event) {
    Requests::System* const system = Current;
    if (!system)
        return FALSE;
    SetEvent(system->stop);
    // When the console is closed or the user logs off, the system ends the program as soon as this returns.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        WaitForSingleObject(system->done, 4000);
    return TRUE;
}

} // namespace

Requests::Requests() : m_system(std::make_unique<System>()) {
    m_system->stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_system->done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    Current = m_system.get();
    if (!m_system->stop || !m_system->done || !SetConsoleCtrlHandler(OnConsoleEvent, TRUE))
        throw std::runtime_error("Ctrl+C can't be watched");
}

// Intentional: the events stay, because the handler's thread may still wait for them.
Requests::~Requests() {
    SetEvent(m_system->done);
    SetConsoleCtrlHandler(OnConsoleEvent, FALSE);
    Current = nullptr;
    static_cast<void>(m_system.release());
}

Requests::Asked Requests::Take() {
    return {.stop = WaitForSingleObject(m_system->stop, 0) == WAIT_OBJECT_0, .keyPresses = 0};
}

} // namespace Simulator
