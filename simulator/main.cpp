// zelk-radio: plays an analog radio on a simulated serial port.
#include "simulator/Options.h"
#include "simulator/Player.h"
#include "simulator/PortLink.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

using namespace Simulator;

constexpr int Trouble = 1;
constexpr int BadUsage = 2;

int Complain(const std::string& text, int code) {
    std::fprintf(stderr, "zelk-radio: %s\n", text.c_str());
    return code;
}

/// A descriptor that the loop can wait on for the signals that it answers.
int WatchSignals() {
    sigset_t watched;
    sigemptyset(&watched);
    for (int number : {SIGTERM, SIGINT, SIGHUP, SIGUSR1})
        sigaddset(&watched, number);
    sigprocmask(SIG_BLOCK, &watched, nullptr);
    return signalfd(-1, &watched, SFD_NONBLOCK | SFD_CLOEXEC);
}

int Play(const Options& options) {
    std::string trouble;
    Journal journal;
    if (!options.logFile.empty() && !journal.Open(options.logFile, trouble))
        return Complain(trouble, Trouble);
    MemoryList memories;
    if (!options.habits.memoryFile.empty() &&
        !LoadMemories(options.habits.memoryFile, *options.model, memories, trouble))
        return Complain(trouble, Trouble);
    const int signals = WatchSignals();
    if (signals < 0)
        return Complain("signals can't be watched", Trouble);

    Outlet outlet;
    FaultyLink link(FaultPlan(options.faults), options.late, outlet, journal);
    AnalogRadio radio(*options.model, options.habits, std::move(memories), link);
    {
        // The link goes before the port does: nobody finds a name without a device behind it.
        PseudoTerminal port;
        PortLink name(options.portsFolder.empty() ? DefaultPortsFolder() : options.portsFolder, options.name,
                      port.DeviceName());
        std::printf("zelk-radio: %s %s is ready at %s\n", std::string(options.model->name).c_str(),
                    std::string(options.model->band).c_str(), name.Path().c_str());
        std::fflush(stdout);
        Player(port, radio, link, outlet, journal, options.pace, options.once).Run(signals);
    }
    close(signals);
    return radio.Store(trouble) ? 0 : Complain(trouble, Trouble);
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    std::string trouble;
    if (!ParseOptions({argv + 1, argv + argc}, options, trouble))
        return Complain(trouble, BadUsage);
    switch (options.task) {
    case Options::Task::Help:
        std::fputs(HelpText().c_str(), stdout);
        return 0;
    case Options::Task::List:
        std::fputs(ListText().c_str(), stdout);
        return 0;
    case Options::Task::Play:
        break;
    }
    try {
        return Play(options);
    } catch (const std::exception& failure) {
        return Complain(failure.what(), Trouble);
    }
}
