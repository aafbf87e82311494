// The scripts around campaigns: the one that runs them on all cores, and the one that changes the drivers.
#include "robot/Files.h"
#include "robot/Process.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using testbench::Process;

struct Result {
    int code = -1;
    std::string output;
};

class CampaignScript : public ::testing::Test {
protected:
    CampaignScript() {
        std::string name = (fs::temp_directory_path() / "campaign-XXXXXX").string();
        m_folder = mkdtemp(name.data());
    }
    ~CampaignScript() override { fs::remove_all(m_folder); }

    Result Run(const std::vector<std::string>& arguments, const std::string& jobs = "2") {
        std::vector<std::string> command;
        command.reserve(arguments.size() + 1);
        command.emplace_back(ZELK_SOURCE_DIR "/tools/campaign");
        command.insert(command.end(), arguments.begin(), arguments.end());
        Process script(command, {.environment = {{"CAMPAIGN_PROGRAM", m_program.string()},
                                                 {"CAMPAIGN_FOLDER", m_folder.string()},
                                                 {"CAMPAIGN_JOBS", jobs}}});
        const int code = script.WaitForExit(100'000).value_or(-1);
        return {code, script.Output()};
    }
    std::string State() const { return testbench::ReadFileIfAny(m_folder / "state"); }

    /// In place of zelk-campaign: does this in a run, and reports like the real one.
    void StandIn(const std::string& run) {
        m_program = m_folder / "stand-in";
        testbench::WriteFile(m_program, "#!/bin/sh\nif [ $1 = report ]; then\n    exec '" +
                                            std::string(ZELK_CAMPAIGN) + "' \"$@\"\nfi\n" + run + "\n");
        fs::permissions(m_program, fs::perms::owner_all);
    }

    fs::path m_folder;
    fs::path m_program = ZELK_CAMPAIGN;
};

/// The text from the first table on, without the line that depends on the machine's speed.
std::string TablesOf(const std::string& output) {
    const size_t begin = output.find("\ndigital  "), end = output.rfind(" seeds broken,");
    return begin < end && end != output.npos ? output.substr(begin, end - begin) : "";
}

TEST_F(CampaignScript, GoesOnBehindTheSeedsOfTheCallBefore) {
    const Result first = Run({"200"}), second = Run({"30"});
    EXPECT_EQ(first.code, 0) << first.output;
    EXPECT_NE(first.output.find(" seeds 1 to 200\n"), std::string::npos) << first.output;
    EXPECT_NE(first.output.find(" dialogues, 0 seeds broken, "), std::string::npos);
    EXPECT_EQ(second.code, 0) << second.output;
    EXPECT_NE(second.output.find(" seeds 201 to 230\n"), std::string::npos) << second.output;
    EXPECT_EQ(State(), "231\n");
    EXPECT_EQ(testbench::ReadFile(m_folder / "log"), first.output + second.output);
}

TEST_F(CampaignScript, ReachesTheSameWithAnyNumberOfProcesses) {
    const std::string alone = TablesOf(Run({"100", "5000"}, "1").output);
    EXPECT_NE(alone, "");
    EXPECT_EQ(TablesOf(Run({"100", "5000"}, "3").output), alone);
    EXPECT_EQ(State(), "5100\n");
}

TEST_F(CampaignScript, TakesSeedsOfACommitAndLeavesTheOthersWhereTheyAre) {
    if (!fs::exists(ZELK_SOURCE_DIR "/.git"))
        GTEST_SKIP() << "no repository";
    Run({"10"});
    const std::string one = Run({"--from-commit", "4"}).output, again = Run({"--from-commit", "4"}).output;
    EXPECT_NE(one.find(" of commit "), std::string::npos) << one;
    EXPECT_EQ(TablesOf(one), TablesOf(again));
    EXPECT_EQ(State(), "11\n");
}

TEST_F(CampaignScript, FailsForABrokenSeedAndShowsHowItIsReplayed) {
    StandIn("echo \"BROKEN seed $2, transfer 1:\"; echo '  a sentence'; echo '  zelk-campaign replay 1 "
            "--jobs 1'\n"
            "echo '3 dialogues, 1 seeds broken, 9 dialogues a second'; exit 1");
    const Result result = Run({"10", "70"});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(
        result.output.find("BROKEN seed 70, transfer 1:\n  a sentence\n  zelk-campaign replay 1 --jobs 1\n"),
        std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("6 dialogues, 2 seeds broken, "), std::string::npos) << result.output;
}

TEST_F(CampaignScript, FailsForAProcessThatBreaksOff) {
    StandIn("echo oh no >&2; exit 134");
    const Result result = Run({"10", "70"});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.output.find("BROKEN one of the seeds from 75 on: zelk-campaign ended with 134\noh no\n"),
              std::string::npos)
        << result.output;
}

TEST_F(CampaignScript, RefusesWhatIsNoNumberOfSeeds) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                      {"0"},
                                                      {"ten"},
                                                      {"10", "x"},
                                                      {"10", "1", "2"},
                                                      {"--from-commit", "10", "1"}})
        EXPECT_EQ(Run(arguments).code, 2);
    EXPECT_EQ(State(), "");
}

TEST(MutationScript, FindsTheLinesOfEachMutationInItsSource) {
    Process script({ZELK_SOURCE_DIR "/tools/mutate", "--check"});
    EXPECT_EQ(script.WaitForExit(100'000).value_or(-1), 0) << script.Output();
}

} // namespace
