// Dialogues that campaigns have found to lose memories.
#include "catalogue/MemoryRow.h"
#include "tests/campaign/CampaignTools.h"

namespace {

using namespace Campaign;

class Finding : public WithoutDisplay {};

/// The number of the message with which the radio says that it has erased its memories.
int PurgeAnswer(const Scenario& scenario) {
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    int messages = 0, purge = -1;
    bool asked = false;
    RunJob(scenario, scenario.jobs[0], FirstWorld(scenario, sheet), sheet,
           [&](int64_t, const std::string& line) {
               asked = asked || line.starts_with("< T204000011");
               if (!line.starts_with("> "))
                   return;
               if (asked && purge < 0)
                   purge = messages;
               ++messages;
           });
    return purge;
}

/// The byte to the radio with which the record of a memory begins, counted from the first record.
int RecordByte(const Scenario& scenario, int record) {
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    const Outcome clean = RunJob(scenario, scenario.jobs[0], FirstWorld(scenario, sheet), sheet);
    int byte = 0;
    for (const std::string& line : clean.sent) {
        if (line.starts_with("T143") && record-- == 0)
            return byte;
        byte += static_cast<int>(line.size()) + 1;
    }
    return -1;
}

TEST_F(Finding, RefusalOfTheLastRowAfterADoubledAnswerIsNoCompleteWrite) {
    for (const int protocol : {0, 2}) {
        const Scenario scenario = WriteToUnknownRadio(protocol);
        const int answer = PurgeAnswer(scenario), byte = RecordByte(scenario, 2);
        ASSERT_GT(answer, 0);
        ASSERT_GT(byte, 0);
        const auto [clean, faulty] =
            CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, answer},
                                      {FaultKind::Changed, Side::ToRadio, byte + 20, 0x40}});
        EXPECT_EQ(clean.status, TransferComplete);
        EXPECT_EQ(faulty.happened, (std::vector{true, true}));
        EXPECT_LT(faulty.world.radio.digital.memories.size(), clean.world.radio.digital.memories.size());
        EXPECT_EQ(faulty.status, TransferCommunicationError) << "protocol " << protocol;
        EXPECT_EQ(faulty.world.program.stamp, "") << "the content of the radio isn't known any more";
    }
}

TEST_F(Finding, RefusalOfAMiddleRowAfterADoubledAnswerIsNoCompleteWrite) {
    const Scenario scenario = WriteToUnknownRadio(2);
    const auto [clean, faulty] =
        CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, PurgeAnswer(scenario)},
                                  {FaultKind::Changed, Side::ToRadio, RecordByte(scenario, 1) + 20, 0x40}});
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    if (faulty.status == TransferComplete)
        EXPECT_TRUE(faulty.world.radio.HoldsTheSame(clean.world.radio));
    else
        EXPECT_EQ(faulty.status, TransferCommunicationError);
}

TEST_F(Finding, RefusalOfTheLastPrimaryAfterADoubledAnswerIsNoCompleteWrite) {
    Scenario scenario = WriteToUnknownRadio(0);
    // The refusal of the second primary comes in the pause before the shadow.
    scenario.shadows[scenario.rows.rbegin()->first] = scenario.rows.begin()->first;
    const auto [clean, faulty] =
        CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, PurgeAnswer(scenario)},
                                  {FaultKind::Changed, Side::ToRadio, RecordByte(scenario, 1) + 20, 0x40}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    EXPECT_LT(faulty.world.radio.digital.memories.size(), clean.world.radio.digital.memories.size());
    EXPECT_EQ(faulty.status, TransferCommunicationError);
}

TEST_F(Finding, RadioThatIsNotTheKnownOneIsPurged) {
    const Scenario scenario = WriteToUnknownRadio(2);
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    World world = FirstWorld(scenario, sheet);
    world.program.stamp = world.program.heldStamp = "20110203040506"; // of another radio
    const Outcome clean = RunJob(scenario, scenario.jobs[0], world, sheet);
    EXPECT_EQ(BrokenConditions(scenario, scenario.jobs[0], world, clean), std::vector<std::string>{});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(clean.world.radio.digital.memories.size(), scenario.rows.size());
}

/// The byte to the program that is the last digit of the stamp which the radio tells.
int LastByteOfTheStamp(const Scenario& scenario, const World& world, Sheet& sheet) {
    int bytes = 0, last = -1;
    RunJob(scenario, scenario.jobs[0], world, sheet, [&](int64_t, const std::string& line) {
        if (!line.starts_with("> "))
            return;
        const int length = static_cast<int>(line.size()) - 2;
        if (line.starts_with("> T20B000021"))
            last = bytes + length - 3;
        bytes += length + 1;
    });
    return last;
}

TEST_F(Finding, RadioWhoseStampLosesAZeroIsPurgedAndHoldsWhatWasSent) {
    Scenario scenario = WriteToUnknownRadio(2);
    const std::string stamp = "20260101000000";
    scenario.radio.digitalHabits.stamp = stamp;
    Job job = scenario.jobs[0];
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    World world = FirstWorld(scenario, sheet);
    world.program.stamp = world.program.heldStamp = stamp;
    Simulator::DigitalMemory other =
        RunJob(scenario, job, world, sheet).world.radio.digital.memories.begin()->second;
    other.address = 200;
    world.radio.digital.memories[200] = other;
    const Outcome clean = RunJob(scenario, job, world, sheet);
    EXPECT_TRUE(clean.world.radio.digital.memories.contains(200));

    job.faults = {{FaultKind::Lost, Side::ToProgram, LastByteOfTheStamp(scenario, world, sheet), 1}};
    Outcome faulty = RunJob(scenario, job, world, sheet);
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.world.radio.digital.memories.size(), scenario.rows.size());
    EXPECT_EQ(BrokenConditions(scenario, job, world, clean, faulty), std::vector<std::string>{});

    auto& memories = faulty.world.radio.digital.memories;
    const int first = memories.begin()->first;
    memories.erase(first);
    memories[200] = other;
    EXPECT_EQ(BrokenConditions(scenario, job, world, clean, faulty),
              (std::vector<std::string>{"a purged radio holds memory 200, which wasn't sent",
                                        "row " + std::to_string(first) +
                                            " counts as sent, but the radio hasn't got it"}));
}

TEST_F(Finding, DoubledAnswerAloneStillCompletesTheWrite) {
    for (const int protocol : {0, 2}) {
        const Scenario scenario = WriteToUnknownRadio(protocol);
        const auto [clean, faulty] =
            CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, PurgeAnswer(scenario)}});
        EXPECT_EQ(faulty.happened, std::vector{true});
        EXPECT_EQ(faulty.status, TransferComplete);
        EXPECT_TRUE(faulty.world.radio.HoldsTheSame(clean.world.radio));
    }
}

TEST_F(Finding, RefusalBeforeATornAnswerAfterADoubledOneIsNoCompleteWrite) {
    // Of the torn answer only the beginning has arrived when the program drops what is stale.
    const Scenario scenario = WriteToUnknownRadio(1);
    const int answer = static_cast<int>(scenario.rows.size()) - 1;
    const auto [clean, faulty] =
        CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, PurgeAnswer(scenario)},
                                  {FaultKind::Refusal, Side::ToProgram, answer},
                                  {FaultKind::Torn, Side::ToProgram, answer}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, (std::vector{true, true, true}));
    EXPECT_FALSE(faulty.world.radio.HoldsTheSame(clean.world.radio));
    EXPECT_EQ(faulty.status, TransferCommunicationError);
}

TEST_F(Finding, CancelAfterADoubledAnswerStillSendsTheEndOfTheTransfer) {
    // The answer that is sent twice counts for the next row, so one more row is sent before that has gone
    // out.
    const Scenario scenario = WriteToUnknownRadio(0);
    const auto [clean, faulty] =
        CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, PurgeAnswer(scenario)},
                                  {FaultKind::Cancel, Side::ToRadio, RecordByte(scenario, 0) + 40, 0}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    EXPECT_EQ(faulty.status, TransferCancelled);
    EXPECT_EQ(faulty.dropped, 0);
    EXPECT_EQ(faulty.sent.back().substr(0, 8), "T9030000");
}

TEST_F(Finding, DoubledEndOfTheHardwareInformationDoesNotEndTheRead) {
    // Messages: two refused hellos, hello, speed, modes, serial number, one text, end.
    const auto [clean, faulty] = CleanAndFaulty(ReadWithHardware(), {{FaultKind::Twice, Side::ToProgram, 7}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.world.program.rows, clean.world.program.rows);
}

TEST_F(Finding, HardwareTextThatComesLateIsNotTakenForAMemory) {
    const auto [clean, faulty] = CleanAndFaulty(
        ReadWithHardware(), {{FaultKind::Twice, Side::ToProgram, 2}, {FaultKind::Twice, Side::ToProgram, 3}});
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    for (const auto& [row, texts] : faulty.world.program.rows) {
        const auto found = clean.world.program.rows.find(row);
        ASSERT_TRUE(found != clean.world.program.rows.end()) << row;
        EXPECT_EQ(found->second, texts) << row;
    }
}

TEST_F(Finding, DoubledRefusalOfAHelloDoesNotShiftTheProtocol) {
    // Message 1 refuses protocol 1. Noise in the next hello has it refused as well.
    const auto [clean, faulty] =
        CleanAndFaulty(ReadWithHardware(), {{FaultKind::Twice, Side::ToProgram, 1},
                                            {FaultKind::NoiseAfter, Side::ToRadio, 57, 7}});
    EXPECT_TRUE(faulty.happened[0]);
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.world.program.rows, clean.world.program.rows)
        << "records of the new layout were read in the old one";
}

TEST_F(Finding, ProtocolComesRoundAgainAfterAGarbledHello) {
    // The third hello offers protocol 2. Refused, it is offered again after all the others.
    constexpr int hello = 19;
    const auto [clean, faulty] =
        CleanAndFaulty(ReadWithHardware(), {{FaultKind::Changed, Side::ToRadio, 2 * hello + 8, 0x40}});
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_GT(faulty.sent.size(), 256U);
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.world.program.rows, clean.world.program.rows)
        << "records of the new layout were read in the old one";
}

TEST_F(Finding, WriteWhosePortIsGoneIsNotComplete) {
    const Scenario scenario = WriteToUnknownRadio(2);
    const auto [clean, faulty] =
        CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, PurgeAnswer(scenario)},
                                  {FaultKind::Unplugged, Side::ToRadio, RecordByte(scenario, 2) + 20}});
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    EXPECT_EQ(faulty.status, TransferTimeout);
}

/// The byte to the program with which the first line of the radio begins that starts with `start`.
int FirstByteOf(const Scenario& scenario, const std::string& start) {
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    int byte = 0, found = -1;
    RunJob(scenario, scenario.jobs[0], FirstWorld(scenario, sheet), sheet,
           [&](int64_t, const std::string& line) {
               if (!line.starts_with("> "))
                   return;
               if (found < 0 && line.starts_with("> " + start))
                   found = byte;
               byte += static_cast<int>(line.size()) - 1; // without "> ", with the carriage return
           });
    return found;
}

TEST_F(Finding, WriteDoesNotGoOnWithoutTheStamp) {
    const Scenario scenario = WriteToUnknownRadio(0);
    // Messages: hello, version, and the version again in place of the stamp.
    const auto [clean, faulty] = CleanAndFaulty(scenario, {{FaultKind::LineBefore, Side::ToProgram, 2}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferTimeout);
    EXPECT_EQ(faulty.world.radio.digital.memories, scenario.radio.digital.memories);
}

/// A write of a shadow, which the radio is too old for, with a fault. Expects that it fails without the
/// fault, and that the radio holds then what it held.
TransferStatus StatusWithATooOldRadio(const Fault& fault) {
    Scenario scenario = WriteToUnknownRadio(0);
    scenario.rows.begin()->second[SHD0] = "300";
    Job job = scenario.jobs[0];
    Sheet sheet(scenario.target->radio, scenario.target->bandIndex);
    World world = FirstWorld(scenario, sheet);
    // No question about modes, during which a second answer would arrive and be dropped.
    world.program.modes = 0x70;
    EXPECT_EQ(RunJob(scenario, job, world, sheet).status, TransferInvalidTransmitData);
    job.faults = {fault};
    const Outcome faulty = RunJob(scenario, job, world, sheet);
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.world.radio.digital.memories, scenario.radio.digital.memories);
    return faulty.status;
}

TEST_F(Finding, WriteDoesNotGoOnWithoutTheVersion) {
    // The agreement to the protocol again in place of the version, which never comes.
    EXPECT_EQ(StatusWithATooOldRadio({FaultKind::LineBefore, Side::ToProgram, 1}), TransferTimeout);
}

TEST_F(Finding, DoubledAgreementDoesNotHideThatTheRadioIsTooOld) {
    // The second one comes in place of the version.
    EXPECT_EQ(StatusWithATooOldRadio({FaultKind::Twice, Side::ToProgram, 0}), TransferInvalidTransmitData);
}

TEST_F(Finding, GarbledLineOfAConfigurationIsAskedForAgain) {
    Scenario scenario = ReadWithHardware();
    scenario.jobs[0].mode = ReadConfigMode;
    const auto [clean, same] = CleanAndFaulty(scenario, {});
    EXPECT_FALSE(clean.configLines.empty());
    // The last bytes are those of the last line's checksum, its end, and the end record.
    constexpr int endRecord = 11;
    const auto [again, faulty] = CleanAndFaulty(
        scenario, {{FaultKind::Changed, Side::ToProgram, clean.bytesToProgram - endRecord - 8, 0x01}});
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.configLines, clean.configLines);
}

TEST_F(Finding, MemoryWhoseKindIsGarbledIsAskedForAgain) {
    const Scenario scenario = ReadWithHardware();
    const int byte = FirstByteOf(scenario, "T143");
    ASSERT_GT(byte, 0);
    // "1" becomes a control character, the kind of an end record and that of a hello.
    for (const int bit : {0x20, 0x08, 0x01}) {
        SCOPED_TRACE(bit);
        const auto [clean, faulty] =
            CleanAndFaulty(scenario, {{FaultKind::Changed, Side::ToProgram, byte + 1, bit}});
        EXPECT_EQ(faulty.happened, std::vector{true});
        EXPECT_EQ(faulty.status, TransferComplete);
        EXPECT_EQ(faulty.world.program.rows, clean.world.program.rows);
    }
}

TEST_F(Finding, DoubledRefusalOfAHelloDoesNotFailAWrite) {
    const auto [clean, faulty] =
        CleanAndFaulty(WriteToUnknownRadio(2), {{FaultKind::Twice, Side::ToProgram, 1}});
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_TRUE(faulty.world.radio.HoldsTheSame(clean.world.radio));
}

TEST_F(Finding, LineOfAConfigurationThatComesTwiceIsTakenOnce) {
    Scenario scenario = ReadWithHardware();
    scenario.jobs[0].mode = ReadConfigMode;
    // Messages: two refused hellos, hello, speed, modes, version, stamp, count, first line.
    const auto [clean, faulty] = CleanAndFaulty(scenario, {{FaultKind::Twice, Side::ToProgram, 8}});
    EXPECT_GT(clean.configLines.size(), 1U);
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.configLines, clean.configLines);
}

TEST_F(Finding, ZeroThatIsGarbledInTheStampMakesNoOtherRadio) {
    Scenario scenario = FirstScenario([](const Scenario& each) {
        return each.radio.IsDigital() && each.target->protocol == 0 && each.knowsRadio &&
               each.radio.digitalHabits.modes == 0x70 && each.shadows.empty() && each.rows.size() >= 2 &&
               each.radio.digitalHabits.stamp == "20200101000000" && each.jobs[0].mode == WriteChannelsMode &&
               each.jobs[0].selected.size() == 1;
    });
    scenario.jobs.resize(1);
    const int byte = FirstByteOf(scenario, "T20B000021");
    ASSERT_GT(byte, 0);
    // The last byte of the stamp is 00. What isn't hexadecimal would add nothing to the checksum either.
    const auto [clean, faulty] =
        CleanAndFaulty(scenario, {{FaultKind::Changed, Side::ToProgram, byte + 23, 0x40}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.boxes, clean.boxes) << "the user was asked to purge a radio that the program knows";
    EXPECT_TRUE(faulty.world.radio.HoldsTheSame(clean.world.radio));
}

TEST_F(Finding, MemoryThatHasLostTwoZerosIsAskedForAgain) {
    Scenario scenario = ReadWithHardware();
    // Two zeros before the frequency: the checksum stays as it was, all that follows moves.
    scenario.radio.digital.memories.begin()->second.flags = 0;
    const int byte = FirstByteOf(scenario, "T143");
    ASSERT_GT(byte, 0);
    const auto [clean, faulty] = CleanAndFaulty(scenario, {{FaultKind::Lost, Side::ToProgram, byte + 8, 2}});
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    EXPECT_EQ(faulty.world.program.rows, clean.world.program.rows);
}

TEST_F(Finding, EndInPlaceOfARepetitionIsNoCompleteRead) {
    const auto [clean, faulty] =
        CleanAndFaulty(ReadWithHardware(), {{FaultKind::WrongChecksum, Side::ToProgram, 1},
                                            {FaultKind::EndRecord, Side::ToProgram, 2}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    EXPECT_EQ(faulty.status, TransferChecksumError);
    EXPECT_TRUE(faulty.world.program.readBrokeOff);
}

TEST_F(Finding, RadioThatAnswersEveryLineWithATextEndsTheWrite) {
    for (const int protocol : {0, 2}) {
        const Scenario scenario = WriteToUnknownRadio(protocol);
        const auto [clean, faulty] =
            CleanAndFaulty(scenario, {{FaultKind::Babble, Side::ToProgram, PurgeAnswer(scenario) + 1}});
        EXPECT_EQ(faulty.happened, std::vector{true});
        EXPECT_EQ(faulty.status, TransferCommunicationError) << "protocol " << protocol;
        EXPECT_FALSE(faulty.gaveUp) << "protocol " << protocol;
    }
}

/// A read of channels from an analog radio of the long form that sends memories 1, 12 and some more.
Scenario AnalogRead() {
    Scenario scenario = FirstScenario([](const Scenario& each) {
        return !each.radio.IsDigital() && each.jobs[0].mode == ReadChannelsMode &&
               !each.radio.analogHabits.shortForm && each.radio.analogHabits.endLine &&
               each.radio.analogHabits.parity == Simulator::Parity::None && each.radio.analog.contains(1) &&
               each.radio.analog.contains(12);
    });
    scenario.jobs.resize(1);
    scenario.jobs[0].faults.clear();
    return scenario;
}

TEST_F(Finding, AnalogLineThatHasLostADigitOfItsNumberNamesNoRow) {
    const Scenario scenario = AnalogRead();
    const int byte = FirstByteOf(scenario, "012 ");
    ASSERT_GT(byte, 0);
    // "012 " becomes "01 ".
    const auto [clean, faulty] = CleanAndFaulty(scenario, {{FaultKind::Lost, Side::ToProgram, byte + 2, 1}});
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    auto expected = clean.world.program.rows;
    EXPECT_EQ(expected.erase(12), 1U);
    EXPECT_EQ(faulty.world.program.rows, expected);
}

TEST_F(Finding, AnalogLineThatBreaksOffWithinAFrequencyBringsNone) {
    const Scenario scenario = AnalogRead();
    const int byte = FirstByteOf(scenario, "012 ");
    ASSERT_GT(byte, 0);
    // Only "146." or the like is left of the receive frequency, and nothing of what follows.
    const auto [clean, faulty] = CleanAndFaulty(
        scenario, {{FaultKind::Lost, Side::ToProgram, byte + 18, Simulator::LongLineLength - 18}});
    EXPECT_EQ(faulty.happened, std::vector{true});
    EXPECT_EQ(faulty.status, TransferComplete);
    const auto& rows = faulty.world.program.rows;
    for (const Column column : {RFRQ, TFRQ, RTON, TTON, RCOD, TCOD})
        EXPECT_EQ(rows.at(12)[static_cast<size_t>(column)], rows.at(0)[static_cast<size_t>(column)])
            << ColumnTag[column];
}

TEST_F(Finding, AnalogAcknowledgementThatIsSentTwiceDoesNotCountForTheNextLine) {
    Scenario scenario = FirstScenario([](const Scenario& each) {
        return !each.radio.IsDigital() && each.rows.size() >= 3 && each.rows.rbegin()->first <= 200 &&
               each.jobs[0].mode == WriteChannelsMode && each.jobs[0].selected.size() == each.rows.size();
    });
    scenario.jobs.resize(1);
    const int last = static_cast<int>(scenario.rows.size());
    const auto [clean, faulty] = CleanAndFaulty(
        scenario, {{FaultKind::Twice, Side::ToProgram, 0}, {FaultKind::NoAck, Side::ToProgram, last}});
    EXPECT_EQ(clean.status, TransferComplete);
    EXPECT_EQ(faulty.happened, (std::vector{true, true}));
    EXPECT_EQ(faulty.status, TransferTimeout);
}

} // namespace
