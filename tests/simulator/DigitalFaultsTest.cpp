// All faults on writing and reading, as the other side sees them.
#include "tests/simulator/DigitalBench.h"

namespace {

using namespace Simulator;
using namespace digitaltest;
using namespace std::chrono_literals;

const std::string Garbage("\x00\xFF\x80\x1B\xFE\x7F\x00\xF5|", 9);
const std::string BadAck = "T204000000F0|"; // only the last digit is wrong

std::string Record(unsigned number) {
    return Framed(PlainV1(number));
}
std::string BadRecord(unsigned number) {
    std::string line = Record(number);
    line.back() = line.back() == '0' ? '1' : '0';
    return line;
}

/// A radio with one fault.
class Faulty : public Bench {
public:
    explicit Faulty(const std::string& fault, std::vector<std::string> more = {})
        : Bench(Arguments(fault, std::move(more))) {}

    /// Writes memories 1 to 3 and returns the answers.
    std::vector<std::string> Write() {
        OpenWrite();
        std::vector<std::string> answers;
        for (unsigned number = 1; number <= 3; ++number)
            answers.push_back(Tell(Record(number)));
        return answers;
    }
    /// Writes memories 1 to 3, then opens a dialogue and starts a read.
    void OpenRead() {
        OpenWrite();
        for (unsigned number = 1; number <= 3; ++number)
            Tell(Record(number));
        Radio().PortClosed();
        Link().PortClosed();
        Open();
        ASSERT_EQ(Tell(SendMemories).substr(0, 12), Ack);
    }

private:
    static std::vector<std::string> Arguments(const std::string& fault, std::vector<std::string> more) {
        more.insert(more.begin(), {"KDRV-716", "--fault", fault});
        return more;
    }
};

using Answers = std::vector<std::string>;

TEST(DigitalFault, ChecksumOnWritingIsWrongOnce) {
    Faulty radio("checksum@2");
    EXPECT_EQ(radio.Write(), (Answers{Said(Ack), BadAck, Said(Ack)}));
    EXPECT_EQ(radio.Radio().Memories().size(), 3u);
}

TEST(DigitalFault, ChecksumOnReadingIsRightInTheRepetition) {
    Faulty radio("checksum@2/2");
    radio.OpenRead();
    EXPECT_EQ(radio.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(radio.Tell(Ack), Said(BadRecord(2)));
    EXPECT_EQ(radio.Tell(Nak), Said(Record(2)));
    EXPECT_EQ(radio.Tell(Ack), Said(Record(3)));
}

TEST(DigitalFault, ChecksumAlwaysStaysWrong) {
    Faulty writing("checksum-always@2");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), BadAck, BadAck}));
    Faulty reading("checksum-always@2/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(reading.Tell(Ack), Said(BadRecord(2)));
    EXPECT_EQ(reading.Tell(Nak), Said(BadRecord(2)));
    EXPECT_EQ(reading.Tell(Ack), Said(BadRecord(3)));
}

TEST(DigitalFault, NakOnWritingComesOnceAndNothingIsStored) {
    Faulty radio("nak@2");
    radio.OpenWrite();
    EXPECT_EQ(radio.Tell(Record(1)), Said(Ack));
    EXPECT_EQ(radio.Tell(Record(2)), Said(Nak));
    EXPECT_EQ(radio.Radio().Memories().size(), 1u);
    EXPECT_EQ(radio.Tell(Record(2)), Said(Ack));
    EXPECT_EQ(radio.Tell(Record(3)), Said(Ack));
    EXPECT_EQ(radio.Radio().Memories().size(), 3u);
    EXPECT_EQ(radio.Radio().Violations(), 0);
    EXPECT_EQ(radio.Tell(End), "");
    EXPECT_EQ(radio.Write(), (Answers{Said(Ack), Said(Nak), Said(Ack)})) << "once in each transfer";
}

TEST(DigitalFault, NakOnReadingStandsInPlaceOfTheRecordOnce) {
    Faulty radio("nak@2/2");
    radio.OpenRead();
    EXPECT_EQ(radio.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(radio.Tell(Ack), Said(Nak));
    EXPECT_EQ(radio.Tell(Ack), Said(Record(2)));
    EXPECT_EQ(radio.Tell(Ack), Said(Record(3)));
    EXPECT_EQ(radio.Tell(Ack), Said(End));
}

TEST(DigitalFault, NakAlwaysNeverStoresAgain) {
    Faulty writing("nak-always@2");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), Said(Nak), Said(Nak)}));
    EXPECT_EQ(writing.Tell(Record(2)), Said(Nak));
    EXPECT_EQ(writing.Radio().Memories().size(), 1u);
    EXPECT_EQ(writing.Radio().Violations(), 0);
    Faulty reading("nak-always@2/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(reading.Tell(Ack), Said(Nak));
    EXPECT_EQ(reading.Tell(Ack), Said(Nak));
}

TEST(DigitalFault, WaitComesSomeTimeBeforeTheAnswer) {
    Faulty writing("wait@2");
    writing.OpenWrite();
    writing.Tell(Record(1));
    EXPECT_EQ(writing.Took(), 0ms);
    EXPECT_EQ(writing.Tell(Record(2)), Said(Wait) + Said(Ack));
    EXPECT_EQ(writing.Took(), 500ms);
    EXPECT_EQ(writing.Tell(Record(3)), Said(Ack));
    Faulty reading("wait@1/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Wait) + Said(Record(1)));
    EXPECT_EQ(reading.Took(), 500ms);
}

TEST(DigitalFault, JoinedComesInOneBurst) {
    Faulty writing("joined@2");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), Said(Wait) + Said(Ack), Said(Ack)}));
    EXPECT_EQ(writing.Took(), 0ms);
    Faulty reading("joined@1/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Wait) + Said(Record(1)));
    EXPECT_EQ(reading.Took(), 0ms);
}

TEST(DigitalFault, LineFeedsFollowEveryLineFromThereOn) {
    Faulty writing("linefeed@2");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), Said(Ack) + "\n", Said(Ack) + "\n"}));
    Faulty reading("linefeed@3/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(reading.Tell(Ack), Said(Record(2)));
    EXPECT_EQ(reading.Tell(Ack), Said(Record(3)) + "\n");
    EXPECT_EQ(reading.Tell(Nak), Said(Record(3)) + "\n");
    EXPECT_EQ(reading.Tell(Ack), Said(End) + "\n");
    Faulty all("linefeed@1");
    EXPECT_EQ(all.Tell(Hello0), Said(Ack) + "\n");
}

TEST(DigitalFault, EndOnWritingStandsInPlaceOfTheAcknowledgement) {
    Faulty radio("end@2");
    radio.OpenWrite();
    EXPECT_EQ(radio.Tell(Record(1)), Said(Ack));
    EXPECT_EQ(radio.Tell(Record(2)), Said(End));
    EXPECT_EQ(radio.Radio().Memories().size(), 1u);
    EXPECT_EQ(radio.Tell(End), "") << "the other side ends, too";
    EXPECT_EQ(radio.Radio().Violations(), 0);
    EXPECT_EQ(radio.Completed(), 0);
}

TEST(DigitalFault, EndOnWritingLeavesTheOldSpeedToTheLastWord) {
    Bench radio({"KDRV-716B", "--fault", "end@1"});
    radio.OpenWrite();
    EXPECT_EQ(radio.Tell(Framed(PlainV2(1))), Said(End));
    EXPECT_EQ(radio.Tell(End), "");
    EXPECT_EQ(radio.Radio().Violations(), 0);
}

TEST(DigitalFault, EndOnReadingComesEarly) {
    Faulty radio("end@2/2");
    radio.OpenRead();
    EXPECT_EQ(radio.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(radio.Tell(Ack), Said(End));
    EXPECT_EQ(radio.Radio().Violations(), 0);
}

TEST(DigitalFault, DeafRadioChangesItsSpeedAndSaysNothingMore) {
    Bench radio({"KDRV-716B", "--fault", "deaf@1/1"});
    EXPECT_EQ(radio.Tell(Hello2), Said(Ack));
    EXPECT_EQ(radio.Tell(ChangeSpeed), Said(Ack));
    for (int baud : {115200, 9600}) {
        radio.SetSpeed(baud);
        EXPECT_EQ(radio.Tell(ReadModes), "");
    }
    EXPECT_EQ(radio.Radio().Violations(), 0);
    radio.Radio().PortClosed();
    EXPECT_NE(radio.ReadAll(), "");
}

TEST(DigitalFault, BusyRadioAsksForPatienceBeforeItHasErased) {
    Faulty radio("busy@1");
    radio.OpenWrite();
    EXPECT_EQ(radio.Tell(Purge), Said(Wait) + Said(Ack));
    EXPECT_EQ(radio.Took(), 500ms);
    EXPECT_EQ(radio.Tell(Framed("T204000510")), Said(Wait) + Said(Ack));
    EXPECT_EQ(radio.Tell(Record(1)), Said(Ack));
}

TEST(DigitalFault, SilenceBeginsBehindTheAnswerBefore) {
    Faulty writing("silence@2");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), "", ""}));
    EXPECT_EQ(writing.Radio().Memories().size(), 1u);
    Faulty reading("silence@2/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(reading.Tell(Ack), "");
    Faulty first("silence@1");
    first.OpenWrite();
    EXPECT_EQ(first.Tell(Record(1)), "") << "the dialogue comes as far as the first record";
}

TEST(DigitalFault, MissingAndLateAcknowledgements) {
    Faulty missing("no-ack@2");
    EXPECT_EQ(missing.Write(), (Answers{Said(Ack), "", Said(Ack)}));
    EXPECT_EQ(missing.Radio().Memories().size(), 3u);
    Faulty late("late-ack@3", {"--late", "700"});
    EXPECT_EQ(late.Write(), (Answers{Said(Ack), Said(Ack), Said(Ack)}));
    EXPECT_EQ(late.Took(), 700ms);
    Faulty reading("no-ack@1/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Record(1))) << "a record is no acknowledgement";
}

TEST(DigitalFault, NoiseIsALineOfItsOwn) {
    Faulty writing("noise@2");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), Garbage + Said(Ack), Said(Ack)}));
    Faulty reading("noise@1/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Garbage + Said(Record(1)));
}

TEST(DigitalFault, TornAnswersComeInPieces) {
    Faulty writing("torn@3");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), Said(Ack), Said(Ack)}));
    EXPECT_EQ(writing.Took(), 450ms);
    Faulty reading("torn@1/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Record(1)));
    EXPECT_EQ(reading.Took(), 450ms);
}

TEST(DigitalFault, CutAnswersBreakOffInTheirMiddle) {
    Faulty writing("cut@2");
    EXPECT_EQ(writing.Write(), (Answers{Said(Ack), "T20400|", Said(Ack)}));
    Faulty reading("cut@1/2");
    reading.OpenRead();
    EXPECT_EQ(reading.Tell(Ack), Said(Record(1).substr(0, 69)));
    EXPECT_EQ(reading.Tell(Nak), Said(Record(1)));
}

TEST(DigitalFault, UnplugComesBehindTheStoredRecord) {
    Faulty radio("unplug@2");
    EXPECT_EQ(radio.Write(), (Answers{Said(Ack), "", ""}));
    EXPECT_TRUE(radio.Vanished());
    EXPECT_EQ(radio.Radio().Memories().size(), 2u);
}

TEST(DigitalFault, OfOneTransferLeavesTheOthersAlone) {
    Faulty radio("nak@1/2");
    EXPECT_EQ(radio.Write()[0], Said(Ack));
    radio.Tell(End);
    EXPECT_EQ(radio.Write()[0], Said(Nak));
    radio.Tell(End);
    EXPECT_EQ(radio.Write()[0], Said(Ack));
}

TEST(DigitalFault, RefusedRecordsAreNotCounted) {
    Faulty radio("no-ack@2");
    radio.OpenWrite();
    EXPECT_EQ(radio.Tell(Record(1)), Said(Ack));
    EXPECT_EQ(radio.Tell(Framed(With(PlainV1(2), 32, "00"))), Said(Nak));
    EXPECT_EQ(radio.Tell(Record(2)), "");
}

} // namespace
