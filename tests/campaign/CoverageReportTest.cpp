// What a campaign's processes have reached, added up.
#include "campaign/CoverageReport.h"

#include "tests/campaign/CampaignTools.h"

#include <algorithm>
#include <sstream>

namespace {

using namespace Campaign;

bool Names(const std::vector<std::string>& pairs, const std::string& pair) {
    return std::find(pairs.begin(), pairs.end(), pair) != pairs.end();
}

void AddLines(Totals& totals, const std::string& lines) {
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);)
        AddLine(totals, line);
}

TEST(CoverageReport, AddsUpWhatProcessesHavePrinted) {
    Totals one, other;
    one.dialogues = 400;
    one.broken = 2;
    AddCoverage(one, {{{true, "hardware text", FaultKind::Lost}, 7},
                      {{false, "Sending Memory Data....", FaultKind::Cancel}, 3}});
    other.dialogues = 50;
    AddCoverage(other, {{{true, "hardware text", FaultKind::Lost}, 5}});
    Totals sum;
    for (const Totals& each : {one, other})
        AddLines(sum, "BROKEN seed 12, transfer 1:\n  7 dialogues of a sentence\n" + CoverageLines(each) +
                          TotalLine(each, 0.5));
    EXPECT_EQ(sum.dialogues, 450);
    EXPECT_EQ(sum.broken, 2);
    const Coverage expected = {{{true, "hardware text", FaultKind::Lost}, 12},
                               {{false, "Sending Memory Data....", FaultKind::Cancel}, 3}};
    EXPECT_EQ(sum.coverage, expected);
    EXPECT_EQ(TotalLine(sum, 0.5), "450 dialogues, 2 seeds broken, 900 dialogues a second\n");
}

TEST(CoverageReport, NamesPairsUntilTheyAreReached) {
    Totals totals;
    EXPECT_TRUE(Names(NeverReached(totals), "digital, purge, lost"));
    EXPECT_TRUE(Names(NeverReached(totals), "analog, sending, late-ack"));
    AddCoverage(totals, {{{true, "purge", FaultKind::Lost}, 1},
                         {{false, "Sending Memory Data....", FaultKind::LateAck}, 1}});
    EXPECT_FALSE(Names(NeverReached(totals), "digital, purge, lost"));
    EXPECT_FALSE(Names(NeverReached(totals), "analog, sending, late-ack"));
}

TEST(CoverageReport, IsLongEnoughAfterAQuarterOfAMillionDialogues) {
    Totals totals;
    totals.dialogues = 249'999;
    EXPECT_FALSE(IsLongEnough(totals));
    ++totals.dialogues;
    EXPECT_TRUE(IsLongEnough(totals));
}

TEST(CoverageReport, CountsATakenPortBeforeTheFirstState) {
    Totals totals;
    EXPECT_TRUE(Names(NeverReached(totals), "digital, start, port-taken"));
    EXPECT_FALSE(Names(NeverReached(totals), "digital, data, port-taken"));
    AddCoverage(totals, {{{true, "data", FaultKind::PortTaken}, 4}});
    EXPECT_FALSE(Names(NeverReached(totals), "digital, start, port-taken"));
    EXPECT_EQ(ReachedTogether(totals), std::vector<std::string>{});
}

TEST(CoverageReport, TellsWhatOnlySeveralFaultsCanReach) {
    Totals totals;
    EXPECT_FALSE(Names(NeverReached(totals), "digital, opening, noise"));
    AddCoverage(totals, {{{true, "opening", FaultKind::Noise}, 2}});
    EXPECT_EQ(ReachedTogether(totals), std::vector<std::string>{"digital, opening, noise, 2"});
}

TEST(CoverageReport, HasAColumnAlsoForAStateThatItDoesNotKnow) {
    Totals totals;
    AddCoverage(totals, {{{false, "Humming....", FaultKind::Lost}, 31}});
    EXPECT_NE(CoverageTables(totals).find("Humming...."), std::string::npos);
    EXPECT_NE(CoverageTables(totals).find(" 31\n"), std::string::npos);
}

class CoverageOfRuns : public WithoutDisplay {};

TEST_F(CoverageOfRuns, RulesOutNothingThatOneFaultReaches) {
    Runner runner;
    for (uint64_t seed = 1; seed <= 3000; ++seed) {
        const Scenario scenario = MakeScenario(seed);
        if (scenario.jobs.size() == 1 && scenario.jobs[0].faults.size() == 1)
            runner.Run(seed);
    }
    Totals totals;
    AddCoverage(totals, runner.Covered());
    EXPECT_GT(totals.coverage.size(), 100U);
    EXPECT_EQ(ReachedTogether(totals), std::vector<std::string>{});
}

} // namespace
