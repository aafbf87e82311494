// zelk-campaign: transfers in virtual time with faults from seeds.
#include "campaign/CoverageReport.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace Campaign;

constexpr int ExitBroken = 1;
constexpr int ExitUsage = 2;

int Usage() {
    std::fputs(
        "zelk-campaign run FIRST COUNT [--until-broken]\n"
        "                                   runs COUNT seeds from FIRST on, or until one breaks a condition\n"
        "zelk-campaign report SECONDS       adds up what runs have printed, from standard input;\n"
        "                                   SECONDS is how long they took together\n"
        "zelk-campaign replay SEED [...]    runs one seed and prints its dialogue;\n"
        "                                   --jobs N, --rows N and --faults LIST as a failing run\n"
        "                                   printed them leave out the rest\n",
        stderr);
    return ExitUsage;
}

void PrintBroken(Runner& runner, uint64_t seed, const Verdict& verdict) {
    std::printf("BROKEN seed %s, transfer %d:\n", std::to_string(seed).c_str(), verdict.job + 1);
    for (const std::string& sentence : verdict.broken)
        std::printf("  %s\n", sentence.c_str());
    std::printf("  zelk-campaign replay %s %s\n", std::to_string(seed).c_str(),
                ArgumentsOf(runner.Shrink(seed)).c_str());
    std::fflush(stdout);
}

double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

int Run(uint64_t first, uint64_t count, bool untilBroken) {
    Runner runner;
    Totals totals;
    const auto start = std::chrono::steady_clock::now();
    for (uint64_t seed = first; seed < first + count; ++seed) {
        const Verdict verdict = runner.Run(seed);
        totals.dialogues += verdict.dialogues;
        if (verdict.broken.empty())
            continue;
        ++totals.broken;
        PrintBroken(runner, seed, verdict);
        if (untilBroken)
            break;
    }
    AddCoverage(totals, runner.Covered());
    std::fputs(CoverageLines(totals).c_str(), stdout);
    std::fputs(TotalLine(totals, SecondsSince(start)).c_str(), stdout);
    return totals.broken ? ExitBroken : 0;
}

int Report(double seconds) {
    Totals totals;
    for (std::string line; std::getline(std::cin, line);)
        AddLine(totals, line);
    std::fputs(CoverageTables(totals).c_str(), stdout);
    for (const std::string& pair : ReachedTogether(totals))
        std::printf("by several faults together: %s\n", pair.c_str());
    const std::vector<std::string> missing = NeverReached(totals);
    for (const std::string& pair : missing)
        std::printf("never reached: %s\n", pair.c_str());
    std::fputs(TotalLine(totals, seconds).c_str(), stdout);
    return totals.broken || (IsLongEnough(totals) && !missing.empty()) ? ExitBroken : 0;
}

int Replay(uint64_t seed, const std::vector<std::string>& arguments) {
    const Reduction reduction = ReadReduction(arguments);
    Scenario scenario = MakeScenario(seed);
    Reduce(scenario, reduction);
    std::fputs(Describe(scenario).c_str(), stdout);
    Runner runner;
    const Verdict verdict = runner.Run(seed, reduction, [](int64_t milliseconds, const std::string& line) {
        std::string shown;
        for (const char character : line)
            if (character >= ' ' && character <= '~') {
                shown += character;
            } else {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned char>(character));
                shown += escaped;
            }
        const long long time = milliseconds;
        std::printf("%8lld %s\n", time, shown.c_str());
    });
    for (const std::string& sentence : verdict.broken)
        std::printf("BROKEN %s\n", sentence.c_str());
    return verdict.broken.empty() ? 0 : ExitBroken;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        if (arguments.size() < 2)
            return Usage();
        if (arguments[0] == "report" && arguments.size() == 2)
            return Report(std::stod(arguments[1]));
        StartWithoutDisplay();
        const bool untilBroken = arguments.size() == 4 && arguments[3] == "--until-broken";
        if (arguments[0] == "run" && (arguments.size() == 3 || untilBroken))
            return Run(std::stoull(arguments[1]), std::stoull(arguments[2]), untilBroken);
        if (arguments[0] == "replay")
            return Replay(std::stoull(arguments[1]), {arguments.begin() + 2, arguments.end()});
        return Usage();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "zelk-campaign: %s\n", failure.what());
        return ExitUsage;
    }
}
