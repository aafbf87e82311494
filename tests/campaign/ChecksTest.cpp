// The conditions of a campaign fail when they should.
#include "catalogue/MemoryRow.h"
#include "tests/campaign/CampaignTools.h"

#include <algorithm>
#include <functional>
#include <utility>

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
                   each.target->protocol == 0 && !each.knowsRadio;
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

TEST_F(CampaignChecks, NoticeAMemoryThatIsNotOnThePageAfterAPurgeThatACleanWriteDoesNotDo) {
    const std::vector<std::string> sentences =
        Sentences(WriteToUnknownRadio(2),
                  [](Outcome& outcome) {
                      outcome.boxes.insert(outcome.boxes.begin(), "This radio's memories");
                      outcome.world.radio.digital.memories[77].address = 77;
                  },
                  {{FaultKind::Silence, Side::ToProgram, 2}});
    EXPECT_TRUE(std::any_of(sentences.begin(), sentences.end(), [](const std::string& sentence) {
        return sentence.starts_with("an unfinished write") && sentence.ends_with(": 77");
    }));
}

TEST_F(CampaignChecks, NoticeAMemoryOfThePageThatWasNotSentAfterAPurgeThatACleanWriteDoesNotDo) {
    int number = 0;
    const std::vector<std::string> sentences =
        Sentences(WriteToUnknownRadio(2),
                  [&](Outcome& outcome) {
                      outcome.boxes.insert(outcome.boxes.begin(), "This radio's memories");
                      number = outcome.world.program.rows.rbegin()->first;
                      auto& memory = outcome.world.radio.digital.memories[number];
                      memory.address = number;
                      memory.description = "NOT SENT";
                  },
                  {{FaultKind::Silence, Side::ToProgram, 2}});
    EXPECT_TRUE(std::any_of(sentences.begin(), sentences.end(), [&](const std::string& sentence) {
        return sentence.starts_with("an unfinished write") &&
               sentence.ends_with(": " + std::to_string(number));
    }));
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

/// The first sentence about a transfer without faults whose outcome was falsified.
std::string SentenceWithoutFaults(const Scenario& scenario, const std::function<void(Outcome&)>& falsify) {
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    const World world = FirstWorld(scenario, sheet);
    Job job = scenario.jobs.at(0);
    job.faults.clear();
    Outcome clean = RunJob(scenario, job, world, sheet);
    falsify(clean);
    const std::vector<std::string> sentences = BrokenConditions(scenario, job, world, clean);
    return sentences.empty() ? "" : sentences.front();
}

/// The first sentence about a read of memories 1 to this number, all of one zone, whose last row on the page
/// gets another zone.
std::string SentenceAboutOneZone(Scenario scenario, int memories, const std::string& zone) {
    auto& held = scenario.radio.digital.memories;
    Simulator::DigitalMemory memory = held.begin()->second;
    memory.flags = 0;
    memory.zone = 0;
    held.clear();
    for (int number = 1; number <= memories; ++number) {
        memory.address = memory.number = memory.primary = number;
        held[number] = memory;
    }
    return SentenceWithoutFaults(scenario, [&](Outcome& outcome) {
        if (!zone.empty())
            outcome.world.program.rows.rbegin()->second[ZONE] = zone;
    });
}

TEST_F(CampaignChecks, KnowThatTheSeventeenthMemoryOfAZoneIsMovedToTheNext) {
    EXPECT_EQ(SentenceAboutOneZone(Read(), 17, ""), "");
    EXPECT_EQ(SentenceAboutOneZone(Read(), 16, ""), "");
}

TEST_F(CampaignChecks, NoticeAMemoryThatIsMovedFromAZoneWithRoom) {
    const std::string sentence = SentenceAboutOneZone(Read(), 16, "9");
    EXPECT_TRUE(sentence.starts_with("row 16 isn't the radio's memory: ZONE is \"9\"")) << sentence;
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

TEST_F(CampaignChecks, NoticeAnotherConfigurationUnlessASecondFaultEndsWhatTheRadioBabbles) {
    Scenario scenario = ReadWithHardware();
    scenario.jobs[0].mode = ReadConfigMode;
    EXPECT_EQ(Sentences(scenario, [](Outcome& outcome) { outcome.configLines.pop_back(); },
                        {{FaultKind::Twice, Side::ToProgram, 8}}),
              std::vector<std::string>{"a complete read of another configuration"});
    // The radio babbles instead of its second and third text. Its end record comes because it is sent twice.
    const auto lacksTexts = [](Outcome& outcome) {
        EXPECT_EQ(outcome.happened, (std::vector{true, true}));
        EXPECT_EQ(outcome.status, TransferComplete);
        EXPECT_EQ(outcome.configLines.size(), 1U);
    };
    EXPECT_EQ(Sentences(scenario, lacksTexts,
                        {{FaultKind::Babble, Side::ToProgram, 9}, {FaultKind::Twice, Side::ToProgram, 11}}),
              std::vector<std::string>{});
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

TEST_F(CampaignChecks, NoticeEachFieldOfAMemoryThatIsWrong) {
    const auto memory = [](Outcome& outcome) -> Simulator::DigitalMemory& {
        return outcome.world.radio.digital.memories.begin()->second;
    };
    const Scenario scenario = WriteToUnknownRadio(2);
    EXPECT_EQ(SentenceWithoutFaults(scenario, [](Outcome&) {}), "");
    const std::vector<std::pair<std::string, std::function<void(Outcome&)>>> cases = {
        {"flags", [&](Outcome& outcome) { memory(outcome).flags ^= 0x40; }},
        {"zone", [&](Outcome& outcome) { memory(outcome).zone ^= 1; }},
        {"receive tone", [&](Outcome& outcome) { memory(outcome).rxTone += 1; }},
        {"transmit code", [&](Outcome& outcome) { memory(outcome).txCode += 1; }},
        {"transmit NAC", [&](Outcome& outcome) { memory(outcome).txNac ^= 1; }},
        {"squelch value", [&](Outcome& outcome) { memory(outcome).squelchValue ^= 1; }},
    };
    for (const auto& [field, falsify] : cases)
        EXPECT_NE(SentenceWithoutFaults(scenario, falsify).find("of the radio: " + field), std::string::npos)
            << field;
}

TEST_F(CampaignChecks, NoticeACellThatIsNotTheRadiosMemory) {
    for (const Column column : {MNUM, SCAN, ZONE, MODE, RSQL, RNSV, RTON, RTGP, TCOD, TIDC})
        EXPECT_NE(SentenceWithoutFaults(
                      Read(),
                      [&](Outcome& outcome) {
                          outcome.world.program.rows.rbegin()->second[static_cast<size_t>(column)] = "?";
                      })
                      .find(std::string(ColumnTag[column]) + " is \"?\""),
                  std::string::npos)
            << ColumnTag[column];
}

/// Two bytes of the first memory, one of which becomes a small letter, while the checksum still fits.
std::vector<Fault> SmallLetterThatFits(const Scenario& scenario) {
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    int begin = 0;
    std::string memory;
    RunJob(scenario, scenario.jobs[0], FirstWorld(scenario, sheet), sheet,
           [&](int64_t, const std::string& line) {
               if (!line.starts_with("> ") || !memory.empty())
                   return;
               if (line.starts_with("> T143"))
                   memory = line.substr(2);
               else
                   begin += static_cast<int>(line.size()) - 1; // without "> ", with the carriage return
           });
    constexpr size_t name = 14; // the digits from here on
    for (size_t up = name; up + 2 < memory.size(); ++up)
        for (size_t down = name; down + 2 < memory.size(); ++down)
            if (up % 2 == down % 2 && memory[up] == '4' && memory[down] == '9')
                return {{FaultKind::Changed, Side::ToProgram, begin + static_cast<int>(up), '4' ^ 'c'},
                        {FaultKind::Changed, Side::ToProgram, begin + static_cast<int>(down), '9' ^ '1'}};
    return {};
}

TEST_F(CampaignChecks, KnowThatASmallLetterWhichFitsTheChecksumDeceivesTheProgram) {
    const Scenario scenario = ReadWithHardware();
    Job job = scenario.jobs[0];
    job.faults = SmallLetterThatFits(scenario);
    ASSERT_EQ(job.faults.size(), 2u);
    const auto [clean, faulty] = CleanAndFaulty(scenario, job.faults);
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_TRUE(faulty.forgedToProgram);
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    EXPECT_EQ(BrokenConditions(scenario, job, FirstWorld(scenario, sheet), clean, faulty),
              std::vector<std::string>{});
}

TEST_F(CampaignChecks, KnowThatADoubledLineEndBringsAnAnswerTooMany) {
    // The answer to the empty line is taken for that of the next row, and so on to the last one, which the
    // radio refuses. The program tells of a failure, but can't know which row it was.
    Scenario scenario = MakeScenario(40621187310404);
    Reduce(scenario, {.faults = {{0, 1, 4}}, .rows = 2, .jobs = 1});
    const Job& job = scenario.jobs[0];
    ASSERT_EQ(job.faults.size(), 3u);
    ASSERT_EQ(job.faults[0].kind, FaultKind::Doubled);
    const auto [clean, faulty] = CleanAndFaulty(scenario, job.faults);
    EXPECT_EQ(faulty.emptyLines, std::vector<std::string>{"data"});
    EXPECT_EQ(faulty.status, TransferCommunicationError);
    EXPECT_TRUE(faulty.world.program.stamp.empty()) << "the next write must restore the radio";
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    const World world = FirstWorld(scenario, sheet);
    EXPECT_EQ(BrokenConditions(scenario, job, world, clean, faulty), std::vector<std::string>{});
    Outcome without = faulty;
    without.emptyLines.clear();
    EXPECT_EQ(BrokenConditions(scenario, job, world, clean, without),
              std::vector<std::string>{"row 215 counts as sent, but the radio hasn't got it"});
}

/// Doubles the last digit of "C:01:FF" in a line of the configuration: its sum is the same, half a byte
/// later.
Fault DoubledDigitThatFits(const Scenario& scenario) {
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    int begin = 0, doubled = 0;
    RunJob(scenario, scenario.jobs[0], FirstWorld(scenario, sheet), sheet,
           [&](int64_t, const std::string& line) {
               if (!line.starts_with("> "))
                   return;
               if (line.starts_with("> T11D0000433A30313A4646"))
                   doubled = begin + 19;
               begin += static_cast<int>(line.size()) - 1; // without "> ", with the carriage return
           });
    return {FaultKind::Doubled, Side::ToProgram, doubled};
}

TEST_F(CampaignChecks, KnowThatADoubledDigitWhichFitsTheChecksumDeceivesTheProgram) {
    Scenario scenario = FirstScenario([](const Scenario& each) {
        return each.radio.IsDigital() && each.target->protocol == 2 && each.target->firmware[1] == '2' &&
               each.jobs[0].mode == ReadConfigMode;
    });
    scenario.jobs.resize(1);
    Job& job = scenario.jobs[0];
    job.faults.clear();
    job.faults = {DoubledDigitThatFits(scenario)};
    ASSERT_GT(job.faults[0].at, 0);
    const auto [clean, faulty] = CleanAndFaulty(scenario, job.faults);
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_NE(faulty.configLines, clean.configLines);
    EXPECT_TRUE(faulty.forgedToProgram);
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    EXPECT_EQ(BrokenConditions(scenario, job, FirstWorld(scenario, sheet), clean, faulty),
              std::vector<std::string>{});
}

TEST_F(CampaignChecks, NoticeWhatAWriteTellsWrongly) {
    const Scenario scenario = WriteToUnknownRadio(2);
    EXPECT_TRUE(SentenceWithoutFaults(scenario, [](Outcome& outcome) {
                    outcome.rowsSent.erase(outcome.rowsSent.begin());
                }).starts_with("these rows count as sent"));
    EXPECT_TRUE(SentenceWithoutFaults(scenario, [](Outcome& outcome) {
                    outcome.gauge = 1;
                }).starts_with("the gauge shows 1"));
    EXPECT_TRUE(SentenceWithoutFaults(scenario, [](Outcome& outcome) {
                    outcome.world.program.heldRows.clear();
                }).starts_with("the program takes the radio to hold these rows: none"));
    EXPECT_EQ(SentenceWithoutFaults(scenario, [](Outcome& outcome) { outcome.world.program.stamp = ""; }),
              "the program doesn't know the radio after a complete write");
    EXPECT_EQ(
        SentenceWithoutFaults(scenario, [](Outcome& outcome) { outcome.boxes.push_back("This radio"); }),
        "the question whether to purge the radio");
}

TEST_F(CampaignChecks, NoticeAMissingLineAndAMissingPause) {
    const Scenario scenario = WriteToUnknownRadio(2);
    EXPECT_EQ(SentenceWithoutFaults(scenario,
                                    [](Outcome& outcome) {
                                        outcome.sent.erase(outcome.sent.begin() + 4);
                                        outcome.sentAt.erase(outcome.sentAt.begin() + 4);
                                    })
                  .substr(0, 18),
              "line 5 is \"T204000");
    // The fourth line asks for another speed.
    EXPECT_TRUE(SentenceWithoutFaults(scenario, [](Outcome& outcome) {
                    outcome.sentAt[4].begin = outcome.sentAt[3].end + 49;
                }).starts_with("the radio had no time to change its speed"));
    EXPECT_EQ(SentenceWithoutFaults(scenario, [](Outcome& outcome) { outcome.sent.back() = "T204000000FB"; }),
              "the radio wasn't told that the transfer is over");
}

TEST_F(CampaignChecks, NoticeATransferThatDoesNotEnd) {
    EXPECT_EQ(FirstSentence(WriteToUnknownRadio(2), [](Outcome& outcome) { outcome.endless = true; }),
              "not even Cancel ended the transfer");
    EXPECT_EQ(FirstSentence(WriteToUnknownRadio(2), [](Outcome& outcome) { outcome.gaveUp = true; }),
              "the transfer ended only because the user gave up");
    EXPECT_EQ(FirstSentence(WriteToUnknownRadio(2), [](Outcome& outcome) { outcome.dropped = 3; }),
              "3 bytes were still to be sent when the port was closed");
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
