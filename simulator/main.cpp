// zelk-radio: plays a radio on a simulated serial port.
#include "simulator/Options.h"
#include "simulator/Player.h"
#include "simulator/PortLink.h"
#include "simulator/RadioMaker.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <exception>
#include <memory>

namespace {

using namespace Simulator;

constexpr int ExitFailure = 1;
constexpr int BadUsage = 2;
constexpr int RulesBroken = 3;

int Complain(const std::string& text, int code) {
    std::fprintf(stderr, "zelk-radio: %s\n", text.c_str());
    return code;
}

/// Returns a descriptor on which the loop waits for the signals it handles.
int WatchSignals() {
    sigset_t watched;
    sigemptyset(&watched);
    for (int number : {SIGTERM, SIGINT, SIGHUP, SIGUSR1})
        sigaddset(&watched, number);
    sigprocmask(SIG_BLOCK, &watched, nullptr);
    return signalfd(-1, &watched, SFD_NONBLOCK | SFD_CLOEXEC);
}

std::string RadioName(const Options& options) {
    const auto Name = [](const auto& model) {
        return std::string(model.name) + " " + std::string(model.band);
    };
    return options.model ? Name(*options.model) : Name(*options.digitalModel);
}

int Play(const Options& options) {
    Journal journal;
    if (!options.logFile.empty())
        if (const Failure failure = journal.Open(options.logFile))
            return Complain(*failure, ExitFailure);
    ReplyTimes replyTimes;
    if (!options.replyTimesFile.empty())
        if (const Failure failure = replyTimes.Open(options.replyTimesFile))
            return Complain(*failure, ExitFailure);
    OutputQueue output;
    FaultyLink link(FaultPlan(options.faults), options.late, output, journal);
    std::unique_ptr<Radio> radio;
    if (const Failure failure = MakeRadio(options, link, radio))
        return Complain(*failure, ExitFailure);
    const int signals = WatchSignals();
    if (signals < 0)
        return Complain("signals can't be watched", ExitFailure);

    {
        // The link is destroyed before the port, so that no link without a device is ever visible.
        PseudoTerminal port;
        PortLink name(options.portsFolder.empty() ? DefaultPortsFolder() : options.portsFolder, options.name,
                      port.DeviceName());
        std::printf("zelk-radio: %s is ready at %s\n", RadioName(options).c_str(), name.Path().c_str());
        std::fflush(stdout);
        Player(port, *radio, link, output, journal, replyTimes, options.pace, options.once).Run(signals);
    }
    close(signals);
    if (const Failure failure = radio->Store())
        return Complain(*failure, ExitFailure);
    return radio->Violations() > 0 ? RulesBroken : 0;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    if (const Failure failure = ParseOptions({argv + 1, argv + argc}, options))
        return Complain(*failure, BadUsage);
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
        return Complain(failure.what(), ExitFailure);
    }
}
