#include "simulator/Requests_linux.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace Simulator {

Requests::Requests() : m_system(std::make_unique<System>()) {
    sigset_t watched;
    sigemptyset(&watched);
    for (int number : {SIGTERM, SIGINT, SIGHUP, SIGUSR1})
        sigaddset(&watched, number);
    sigprocmask(SIG_BLOCK, &watched, nullptr);
    m_system->signals = signalfd(-1, &watched, SFD_NONBLOCK | SFD_CLOEXEC);
    if (m_system->signals < 0)
        throw std::runtime_error("signals can't be watched");
}

Requests::~Requests() {
    close(m_system->signals);
}

Requests::Asked Requests::Take() {
    Asked asked;
    signalfd_siginfo info;
    while (read(m_system->signals, &info, sizeof info) == sizeof info) {
        if (info.ssi_signo == SIGUSR1)
            ++asked.keyPresses;
        else
            asked.stop = true;
    }
    return asked;
}

} // namespace Simulator
