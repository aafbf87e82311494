// zelk-radio: plays a radio on a simulated serial port, or on a given one.
#include "simulator/Console.h"
#include "simulator/Options.h"
#include "simulator/Player.h"
#include "simulator/PortMaker.h"
#include "simulator/RadioMaker.h"

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
    Requests requests;
    Failure lost;
    {
        const std::unique_ptr<Port> port = OpenPort(options);
        std::printf("zelk-radio: %s is ready at %s\n", RadioName(options).c_str(), port->Name().c_str());
        std::fflush(stdout);
        Player(*port, *radio, link, output, journal, replyTimes, options.pace, options.once).Run(requests);
        lost = port->Lost();
    }
    if (const Failure failure = radio->Store())
        return Complain(*failure, ExitFailure);
    if (lost)
        return Complain(*lost, ExitFailure);
    return radio->Violations() > 0 ? RulesBroken : 0;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    if (const Failure failure = ParseOptions(TakeArguments(argc, argv), options))
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
    if (options.port.empty() && !HasSimulatedPorts())
        return Complain("this system has no simulated ports: say with --port where to play, such as COM5",
                        BadUsage);
    try {
        return Play(options);
    } catch (const std::exception& failure) {
        return Complain(failure.what(), ExitFailure);
    }
}
