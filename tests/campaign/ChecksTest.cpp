// The conditions of a campaign fail when they should.
#include "catalogue/MemoryRow.h"
#include "tests/campaign/CampaignTools.h"

#include <functional>

namespace {

using namespace Campaign;

class CampaignChecks : public WithoutDisplay {
protected:
    /// Sentences about the first job of the scenario after its outcome was falsified.
    static std::vector<std::string> Sentences(const Scenario& scenario,
                                              const std::function<void(Outcome&)>& falsify,
                                              std::vector<Fault> faults = {}) {
        Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
        const World world = FirstWorld(scenario, sheet);
        Job job = scenario.jobs.at(0);
        job.faults.clear();
        const Outcome clean = RunJob(scenario, job, world, sheet);
        EXPECT_EQ(BrokenConditions(scenario, job, world, clean), std::vector<std::string>{});
        job.faults = std::move(faults);
        Outcome faulty = RunJob(scenario, job, world, sheet);
        EXPECT_EQ(BrokenConditions(scenario, job, world, clean, faulty), std::vector<std::string>{});
        falsify(faulty);
        return BrokenConditions(scenario, job, world, clean, faulty);
    }
    static std::string FirstSentence(const Scenario& scenario, const std::function<void(Outcome&)>& falsify,
                                     std::vector<Fault> faults = {}) {
        const std::vector<std::string> sentences = Sentences(scenario, falsify, std::move(faults));
        return sentences.empty() ? "" : sentences.front();
    }
    static Scenario Read() {
        Scenario scenario = FirstScenario([](const Scenario& each) {
            return each.radio.IsDigital() && each.jobs[0].mode == ReadChannelsMode &&
                   each.target->protocol == 0;
        });
        scenario.jobs.resize(1);
        scenario.jobs[0].faults.clear();
        return scenario;
    }
};

TEST_F(CampaignChecks, NoticeAMemoryThatIsMissingAfterACompleteWrite) {
    EXPECT_EQ(FirstSentence(WriteToUnknownRadio(2),
                            [](Outcome& outcome) {
                                outcome.world.radio.digital.memories.erase(
                                    outcome.world.radio.digital.memories.begin());
                            })
                  .substr(0, 16),
              "a complete write");
}

TEST_F(CampaignChecks, NoticeAMemoryThatIsChangedAfterACompleteWrite) {
    EXPECT_EQ(FirstSentence(
                  WriteToUnknownRadio(0),
                  [](Outcome& outcome) { outcome.world.radio.digital.memories.begin()->second.rxNac ^= 1; })
                  .substr(0, 16),
              "a complete write");
}

TEST_F(CampaignChecks, NoticeAMemoryThatNoOneSentInAnUnfinishedWrite) {
    EXPECT_EQ(FirstSentence(WriteToUnknownRadio(2),
                            [](Outcome& outcome) { outcome.world.radio.digital.memories[77].address = 77; },
                            {{FaultKind::Silence, Side::ToProgram, 2}})
                  .substr(0, 19),
              "an unfinished write");
}

TEST_F(CampaignChecks, NoticeARowThatAWriteHasChanged) {
    EXPECT_EQ(
        FirstSentence(WriteToUnknownRadio(2),
                      [](Outcome& outcome) { outcome.world.program.rows.rbegin()->second[DESC] += "!"; })
            .substr(0, 19),
        "a write has changed");
}

TEST_F(CampaignChecks, NoticeAMixtureOfTwoMemoriesAfterARead) {
    const std::string sentence = FirstSentence(
        Read(), [](Outcome& outcome) { outcome.world.program.rows.rbegin()->second[TFRQ] = "150.0000"; });
    EXPECT_TRUE(sentence.ends_with("isn't the radio's memory")) << sentence;
}

TEST_F(CampaignChecks, NoticeAMemoryThatHasNotComeInACompleteRead) {
    const std::vector<std::string> sentences = Sentences(Read(), [](Outcome& outcome) {
        auto& rows = outcome.world.program.rows;
        const std::string zone = rows.rbegin()->second[ZONE];
        rows.erase(std::prev(rows.end()));
    });
    bool told = false;
    for (const std::string& sentence : sentences)
        told = told || sentence.starts_with("a complete read");
    EXPECT_TRUE(told);
}

TEST_F(CampaignChecks, NoticeZoneSlotsThatDoNotAddUp) {
    EXPECT_TRUE(FirstSentence(Read(), [](Outcome& outcome) {
                    ++outcome.world.program.zones[3];
                }).ends_with("are counted"));
}

TEST_F(CampaignChecks, NoticeAWrongBoxAndAWrongStatus) {
    const std::vector<Fault> silence{{FaultKind::Silence, Side::ToProgram, 1}};
    EXPECT_TRUE(FirstSentence(
                    WriteToUnknownRadio(2), [](Outcome& outcome) { outcome.boxes.back() = "Oops"; }, silence)
                    .starts_with("the box isn't \"Timeout Error"));
    EXPECT_EQ(FirstSentence(
                  WriteToUnknownRadio(2),
                  [](Outcome& outcome) {
                      outcome.status = TransferCancelled;
                      outcome.lastStatus = "Transfer Cancelled.";
                      outcome.boxes.pop_back();
                      outcome.sent.push_back("T9030000FC");
                      outcome.sentAt.push_back(outcome.sentAt.back());
                  },
                  silence),
              "nothing that happened gives status 10");
}

TEST_F(CampaignChecks, NoticeWhatATransferLeavesBehind) {
    const Scenario scenario = WriteToUnknownRadio(2);
    EXPECT_EQ(FirstSentence(scenario, [](Outcome& outcome) { outcome.portIsOpen = true; }),
              "the port is still open");
    EXPECT_EQ(FirstSentence(scenario, [](Outcome& outcome) { outcome.logIsOpen = true; }),
              "a log is still open");
    EXPECT_EQ(FirstSentence(scenario, [](Outcome& outcome) { outcome.contextIsClean = false; }),
              "the context still points to the port or the window");
    EXPECT_TRUE(FirstSentence(scenario, [](Outcome& outcome) {
                    outcome.silence = 32'000;
                }).starts_with("the transfer went on"));
    EXPECT_TRUE(FirstSentence(scenario, [](Outcome& outcome) {
                    outcome.violations = 1;
                }).starts_with("the program broke the protocol"));
}

} // namespace
