#include "tests/campaign/CampaignTools.h"

#include <algorithm>
#include <set>

namespace {

using namespace Campaign;

class CampaignRun : public WithoutDisplay {};

TEST_F(CampaignRun, OfASeedIsTheSameEachTime) {
    for (uint64_t seed = 1; seed <= 60; ++seed)
        ASSERT_EQ(StoryOf(seed), StoryOf(seed)) << seed;
}

TEST_F(CampaignRun, DoesNotDependOnTheRunsBefore) {
    Runner fresh, used;
    for (uint64_t seed = 500; seed < 540; ++seed)
        used.Run(seed);
    for (uint64_t seed = 100; seed < 130; ++seed) {
        std::string one, other;
        Runner alone;
        alone.Run(seed, {}, [&](int64_t ms, const std::string& line) { one += std::to_string(ms) + line; });
        used.Run(seed, {}, [&](int64_t ms, const std::string& line) { other += std::to_string(ms) + line; });
        ASSERT_EQ(one, other) << seed;
    }
}

/// A fixed set of seeds, in parts so that they run side by side.
class CampaignSeeds : public WithoutDisplay, public ::testing::WithParamInterface<int> {};

TEST_P(CampaignSeeds, BreakNoCondition) {
    constexpr int seeds = 500;
    const uint64_t first = 1'000'000 + static_cast<uint64_t>(GetParam()) * seeds;
    Runner runner;
    for (uint64_t seed = first; seed < first + seeds; ++seed) {
        const Verdict verdict = runner.Run(seed);
        for (const std::string& sentence : verdict.broken)
            ADD_FAILURE() << sentence << "\nzelk-campaign replay " << seed << ' '
                          << ArgumentsOf(runner.Shrink(seed));
    }
    // A campaign that plays no faults would always hold.
    EXPECT_GT(runner.Covered().size(), 80U);
}
INSTANTIATE_TEST_SUITE_P(Part, CampaignSeeds, ::testing::Range(0, 8));

TEST_F(CampaignRun, ReachesEveryKindOfFaultOnBothSides) {
    std::set<std::pair<bool, FaultKind>> kinds;
    Runner runner;
    for (uint64_t seed = 1; seed <= 1500; ++seed)
        runner.Run(seed);
    for (const auto& [place, count] : runner.Covered())
        kinds.insert({std::get<0>(place), std::get<2>(place)});
    for (int kind = 0; kind < FaultKinds; ++kind) {
        const FaultKind each = static_cast<FaultKind>(kind);
        EXPECT_TRUE(kinds.contains({true, each})) << NameOf(each);
        const bool needsRecords = each == FaultKind::BusyFor || each == FaultKind::Babble ||
                                  each == FaultKind::MissedSpeed ||
                                  (each >= FaultKind::WrongChecksum && each <= FaultKind::BusyErasing);
        EXPECT_EQ(kinds.contains({false, each}), !needsRecords) << NameOf(each);
    }
}

TEST(Reductions, LeaveTheFewestFaultsRowsAndJobsThatStillFail) {
    const Scenario scenario = FirstScenario([](const Scenario& each) {
        return each.jobs.size() == 3 && each.jobs[1].faults.size() >= 3 && each.rows.size() >= 4;
    });
    // Fails as long as the second job has its third fault and two rows are left.
    const Reduction smallest = SmallestReduction(scenario, [](const Reduction& each) {
        return each.jobs >= 2 && each.rows >= 2 &&
               std::find(each.faults[1].begin(), each.faults[1].end(), 2U) != each.faults[1].end();
    });
    EXPECT_EQ(smallest.jobs, 2);
    EXPECT_EQ(smallest.rows, 2);
    EXPECT_EQ(smallest.faults[1], std::vector<size_t>{2});
    EXPECT_TRUE(smallest.faults[0].empty());
}

TEST(Reductions, AreReadAsTheyAreWritten) {
    Reduction reduction;
    reduction.jobs = 2;
    reduction.rows = 5;
    reduction.faults = {{0, 3}, {}, {12}};
    EXPECT_EQ(ArgumentsOf(reduction), "--jobs 2 --rows 5 --faults 0,3/-/12");
    const Reduction read = ReadReduction({"--jobs", "2", "--rows", "5", "--faults", "0,3/-/12"});
    EXPECT_EQ(read.jobs, 2);
    EXPECT_EQ(read.rows, 5);
    EXPECT_EQ(read.faults, reduction.faults);
    EXPECT_THROW(ReadReduction({"--row", "2"}), std::runtime_error);
    EXPECT_THROW(ReadReduction({"--rows"}), std::runtime_error);
}

TEST(Seeds, GiveTheSameNumbersOnEveryMachine) {
    Random random(1);
    EXPECT_EQ(random.Next(), 0x910A2DEC89025CC1U);
    EXPECT_EQ(random.Next(), 0xBEEB8DA1658EEC67U);
}

} // namespace
