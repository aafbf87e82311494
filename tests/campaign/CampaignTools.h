// Dialogues for tests of the campaign.
#pragma once

#include "campaign/Run.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace Campaign {

/// Starts the toolkit before the first test of a program.
class WithoutDisplay : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        static const bool started = (StartWithoutDisplay(), true);
        ASSERT_TRUE(started);
    }
};

/// Everything that the run of a seed shows, one line a line.
inline std::string StoryOf(uint64_t seed) {
    std::string story = Describe(MakeScenario(seed));
    Runner runner;
    const Verdict verdict = runner.Run(seed, {}, [&](int64_t milliseconds, const std::string& line) {
        story += std::to_string(milliseconds) + " " + line + "\n";
    });
    for (const std::string& sentence : verdict.broken)
        story += "broken: " + sentence + "\n";
    return story;
}

/// The first seed from 1 on whose scenario is of this kind.
template <class Kind>
Scenario FirstScenario(Kind isOfThisKind) {
    uint64_t seed = 1;
    while (!isOfThisKind(MakeScenario(seed)))
        ++seed;
    return MakeScenario(seed);
}

/// A write of three memories to a digital radio that the program doesn't know and that has all modes.
inline Scenario WriteToUnknownRadio(int protocol) {
    Scenario scenario = FirstScenario([protocol](const Scenario& each) {
        return each.radio.IsDigital() && each.target->protocol == protocol && !each.knowsRadio &&
               each.radio.digitalHabits.modes == 0x70 && each.rows.size() == 3 && each.shadows.empty() &&
               each.rows.rbegin()->first < 100 && each.jobs[0].mode == WriteChannelsMode &&
               each.target->firmware[1] == (protocol == 2 ? '2' : '1');
    });
    scenario.jobs.resize(1);
    Job& job = scenario.jobs[0];
    job.faults.clear();
    job.acceptsModes = job.acceptsPurge = true;
    for (const auto& [row, texts] : scenario.rows)
        job.selected[row] = true;
    return scenario;
}

/// Outcomes of the first job of a scenario without faults and with these.
inline std::pair<Outcome, Outcome> CleanAndFaulty(Scenario scenario, std::vector<Fault> faults) {
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    const World world = FirstWorld(scenario, sheet);
    Job job = scenario.jobs.at(0);
    job.faults.clear();
    Outcome clean = RunJob(scenario, job, world, sheet);
    job.faults = std::move(faults);
    return {std::move(clean), RunJob(scenario, job, world, sheet)};
}

/// A read of channels from a radio that sends hardware information first.
inline Scenario ReadWithHardware() {
    Scenario scenario = FirstScenario([](const Scenario& each) {
        return each.radio.IsDigital() && each.target->protocol == 2 && each.target->firmware[1] == '2' &&
               each.jobs[0].mode == ReadChannelsMode && each.radio.digital.hardware.size() == 1 &&
               !each.knowsRadio;
    });
    scenario.jobs.resize(1);
    scenario.jobs[0].faults.clear();
    return scenario;
}

} // namespace Campaign
