// The dialogue, question by question.
#include "tests/simulator/DigitalBench.h"

namespace {

using namespace Simulator;
using namespace digitaltest;

TEST(DigitalHello, OfItsOwnProtocolAloneIsAccepted) {
    const char* const hellos[] = {Hello0, Hello1, Hello2};
    for (int own = 0; own < 3; ++own) {
        Bench bench({"KDRV-716B", "--protocol", std::to_string(own)});
        for (int offered = 0; offered < 3; ++offered)
            EXPECT_EQ(bench.Tell(hellos[offered]), Said(offered == own ? Ack : Nak)) << own << offered;
        EXPECT_EQ(bench.Tell(Framed("T007000023030000")), Said(Nak)) << "protocol 3";
        EXPECT_EQ(bench.Radio().Violations(), 0);
    }
}

TEST(DigitalHello, MayComeTwice) {
    Bench bench({"KDRV-716"});
    EXPECT_EQ(bench.Tell(Hello0), Said(Ack));
    EXPECT_EQ(bench.Tell(Hello0), Said(Ack));
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalDialogue, OfProtocol0HasNeitherModesNorHardwareNorSpeedChange) {
    Bench bench({"KDRV-716"});
    bench.Open();
    EXPECT_EQ(bench.Tell(ReadVersion), Said(Framed("T207000023010203")));
    EXPECT_EQ(bench.Radio().Violations(), 0);
    int count = 0;
    for (const char* line : {ReadModes, SendHardware, ChangeSpeed}) {
        EXPECT_EQ(bench.Tell(line), Said(Nak)) << line;
        EXPECT_EQ(bench.Radio().Violations(), ++count) << line;
    }
}

TEST(DigitalDialogue, OfProtocol1IsAskedForModesAtItsOnlySpeed) {
    Bench bench({"KDRV-716", "--protocol", "1", "--modes", "30"});
    bench.Open();
    EXPECT_EQ(bench.Tell(ReadModes), Said(Framed("T20500003330")));
    EXPECT_EQ(bench.Tell(ReadVersion), Said(Framed("T207000023010203")));
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalDialogue, OfProtocol2ChangesTheSpeedAndTellsItsHardware) {
    Bench bench({"KDRV-716B", "--serial", "A1"});
    EXPECT_EQ(bench.Tell(Hello2), "T204000000FB|");
    EXPECT_EQ(bench.Tell(ChangeSpeed), "T204000000FB|");
    bench.SetSpeed(115200);
    EXPECT_EQ(bench.Tell(ReadModes), Said(Framed("T20500003370")));
    EXPECT_EQ(bench.Tell(SendHardware), Said(Framed("T10500004131"))) << "the serial number comes first";
    std::string last;
    int lines = 0;
    for (; lines < 20 && last != Said(End); ++lines) {
        last = bench.Tell(Ack);
        EXPECT_TRUE(last.starts_with("T1") || last == Said(End)) << last;
    }
    EXPECT_EQ(last, Said(End));
    EXPECT_GT(lines, 2) << "there are text lines without a file, too";
    EXPECT_EQ(bench.Tell(ReadVersion), Said(Framed("T207000023020103")));
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalDialogue, AtTheWrongSpeedIsGarbage) {
    Bench bench({"KDRV-716B"});
    bench.SetSpeed(115200);
    EXPECT_EQ(bench.Tell(Hello2), "");
    EXPECT_EQ(bench.Radio().Violations(), 1);
    bench.SetSpeed(9600);
    EXPECT_EQ(bench.Tell(Hello2), Said(Ack));
    EXPECT_EQ(bench.Tell(ChangeSpeed), Said(Ack));
    EXPECT_EQ(bench.Tell(ReadVersion), "") << "it listens at 115200 now";
    EXPECT_EQ(bench.Radio().Violations(), 2);
    EXPECT_EQ(bench.Tell(ReadVersion), "");
    EXPECT_EQ(bench.Radio().Violations(), 2) << "complained of once";
    bench.SetSpeed(115200);
    EXPECT_NE(bench.Tell(ReadVersion), "");
}

TEST(DigitalDialogue, BeginsAnewAt9600AfterAnEndOrWhenThePortWasClosed) {
    Bench bench({"KDRV-716B"});
    bench.OpenWrite();
    EXPECT_EQ(bench.Tell(End), "") << "an end record is not answered";
    bench.OpenWrite();
    bench.Radio().PortClosed();
    bench.OpenWrite();
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalDialogue, IsSeenToBeginAnewByTheFirstLettersOfAHello) {
    Bench bench({"KDRV-716B"});
    for (const char* bytes : {"T", "T0", "T00", "T007", Hello0})
        EXPECT_TRUE(bench.Radio().BeginsAnew(bytes)) << bytes;
    for (const char* bytes : {"T1", "T204000000FB", "07", "x"})
        EXPECT_FALSE(bench.Radio().BeginsAnew(bytes)) << bytes;
}

TEST(DigitalDialogue, MayEndAtAnyPoint) {
    for (int steps = 0; steps <= 4; ++steps) {
        Bench bench({"KDRV-716", "--protocol", "1"});
        const char* const lines[] = {Hello1, ReadModes, ReadVersion, SendMemories};
        for (int k = 0; k < steps; ++k)
            bench.Tell(lines[k]);
        EXPECT_EQ(bench.Tell(End), "") << steps;
        EXPECT_EQ(bench.Radio().Violations(), 0) << steps;
        EXPECT_EQ(bench.Completed(), steps > 0 ? 1 : 0) << steps;
        EXPECT_TRUE(bench.Radio().IsAtRest()) << steps;
    }
}

TEST(DigitalStamp, IsGivenSetAndGivenBack) {
    Bench bench({"KDRV-716", "--stamp", "20260102030405"});
    bench.Open();
    EXPECT_EQ(bench.Tell(ReadStamp), Said(Framed("T20B00002120260102030405")));
    EXPECT_EQ(bench.Tell(Framed("T20B00002120261121003000")), Said(Ack));
    EXPECT_EQ(bench.Tell(ReadStamp), Said(Framed("T20B00002120261121003000")));
    EXPECT_EQ(bench.Radio().Stamp(), "20261121003000");
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalVersion, DecidesOnTheLayoutTogetherWithTheProtocol) {
    EXPECT_EQ(LayoutOf(2, "020103"), Layout::V2);
    EXPECT_EQ(LayoutOf(2, "010203"), Layout::V1);
    EXPECT_EQ(LayoutOf(2, "030000"), Layout::V1);
    EXPECT_EQ(LayoutOf(1, "020103"), Layout::V1);
    EXPECT_EQ(LayoutOf(0, "020103"), Layout::V1);
}

TEST(DigitalWrite, StoresAndGivesBackBothLayouts) {
    const struct {
        std::vector<std::string> radio;
        std::vector<std::string> bodies;
    } cases[] = {
        {{"KDRV-716"}, {PlainV1(0), PlainV1(1), PlainV1(230), PlainV1(231), PlainV1(232)}},
        {{"KDRV-716B", "--firmware", "010203"},
         {PlainV1(0), PlainV1(1), PlainV1(230), PlainV1(231), PlainV1(232)}},
        {{"KDRV-716B"}, {PlainV2(0), PlainV2(1), PlainV2(231), PlainV2(500), PlainV2(501), PlainV2(502)}},
        {{"KDRV-4xxx:K7"}, {PlainV2(0), PlainV2(1), PlainV2(231), PlainV2(500)}},
    };
    for (const auto& round : cases) {
        Bench bench(round.radio);
        bench.OpenWrite();
        std::string all;
        for (const std::string& body : round.bodies) {
            EXPECT_EQ(bench.Tell(Framed(body)), Said(Ack)) << body;
            all += Said(Framed(body));
        }
        EXPECT_EQ(bench.Tell(End), "");
        EXPECT_EQ(bench.ReadAll(), all + Said(End)) << round.radio[0];
        EXPECT_EQ(bench.Radio().Violations(), 0) << round.radio[0];
        EXPECT_EQ(bench.Completed(), 2) << round.radio[0];
    }
}

TEST(DigitalWrite, PurgeRemovesEveryMemory) {
    Bench bench({"KDRV-716"});
    bench.OpenWrite();
    for (unsigned number : {0u, 5u, 232u})
        bench.Tell(Framed(PlainV1(number)));
    EXPECT_EQ(bench.Tell(Purge), Said(Ack));
    EXPECT_TRUE(bench.Radio().Memories().empty());
    EXPECT_EQ(bench.Tell(Framed(PlainV1(6))), Said(Ack));
    EXPECT_EQ(bench.Radio().Memories().count(6), 1u);
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalWrite, EraseRemovesTheMemoryOfThatPlace) {
    Bench bench({"KDRV-716B"});
    bench.OpenWrite();
    bench.Tell(Framed(PlainV2(2)));
    bench.Tell(Framed(With(PlainV2(500), 16, "0003")));
    EXPECT_EQ(bench.Tell(Framed("T204000310")), Said(Ack)) << "there is nothing at 3";
    EXPECT_EQ(bench.Radio().Memories().size(), 2u);
    EXPECT_EQ(bench.Tell(Framed("T20401F410")), Said(Ack));
    EXPECT_EQ(bench.Tell(Framed("T204000210")), Said(Ack));
    EXPECT_TRUE(bench.Radio().Memories().empty());
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalWrite, LastRecordOfAPlaceStands) {
    Bench bench({"KDRV-716"});
    bench.OpenWrite();
    bench.Tell(Framed(PlainV1(5, "FIRST   ")));
    bench.Tell(Framed(PlainV1(5, "SECOND  ")));
    ASSERT_EQ(bench.Radio().Memories().size(), 1u);
    EXPECT_EQ(bench.Radio().Memories().at(5).description, "SECOND  ");
}

TEST(DigitalRead, OfAnEmptyRadioIsAnEndRecord) {
    Bench bench({"KDRV-716B"});
    EXPECT_EQ(bench.ReadAll(), Said(End));
    EXPECT_EQ(bench.Completed(), 1);
}

TEST(DigitalRead, FillsTheShadowsOfAPrimary) {
    Bench bench({"KDRV-716"});
    bench.OpenWrite();
    bench.Tell(Framed(With(PlainV1(5), 8, "10")));
    bench.Tell(Framed(With(With(PlainV1(9), 8, "01"), 10, "05")));
    bench.Tell(Framed(With(With(PlainV1(7), 8, "03"), 10, "05")));
    bench.Tell(End);
    EXPECT_EQ(bench.ReadAll(), Said(Framed(With(With(With(PlainV1(5), 8, "10"), 108, "09"), 112, "07"))) +
                                   Said(Framed(With(With(PlainV1(7), 8, "03"), 10, "05"))) +
                                   Said(Framed(With(With(PlainV1(9), 8, "01"), 10, "05"))) + Said(End));
}

TEST(DigitalRead, SendsARefusedRecordOnceMoreAndThenGoesOn) {
    Bench bench({"KDRV-716"});
    bench.OpenWrite();
    for (unsigned number : {1u, 2u})
        bench.Tell(Framed(PlainV1(number)));
    bench.Tell(End);
    bench.Open();
    bench.Tell(SendMemories);
    EXPECT_EQ(bench.Tell(Ack), Said(Framed(PlainV1(1))));
    EXPECT_EQ(bench.Tell(Nak), Said(Framed(PlainV1(1))));
    EXPECT_EQ(bench.Tell(Nak), Said(Framed(PlainV1(2))));
    EXPECT_EQ(bench.Tell(Nak), Said(Framed(PlainV1(2)))) << "counted for each record";
    EXPECT_EQ(bench.Tell(Nak), Said(End));
    EXPECT_EQ(bench.Radio().Violations(), 0);
}

TEST(DigitalRead, MayBeFollowedByAnEndRecordAtTheOldSpeedOrAHelloAtTheFirst) {
    for (bool polite : {true, false}) {
        Bench bench({"KDRV-716B"});
        EXPECT_EQ(bench.ReadAll(), Said(End));
        if (polite) {
            EXPECT_EQ(bench.Tell(End), "");
        }
        EXPECT_EQ(bench.ReadAll(), Said(End));
        EXPECT_EQ(bench.Completed(), 2);
        EXPECT_EQ(bench.Radio().Violations(), 0);
    }
}

TEST(DigitalRead, InTheFirstLayoutLeavesOutWhatItCannotName) {
    Bench bench({"KDRV-716B", "--protocol", "1"});
    bench.OpenWrite();
    bench.Tell(Framed(PlainV1(230)));
    bench.Tell(Framed(PlainV1(231)));
    bench.Tell(End);
    EXPECT_EQ(bench.Radio().Memories().count(501), 1u);
    EXPECT_EQ(bench.ReadAll(), Said(Framed(PlainV1(230))) + Said(Framed(PlainV1(231))) + Said(End));
}

TEST(DigitalRead, StoppedInTheMiddleKeepsTheMemories) {
    Bench bench({"KDRV-716"});
    bench.OpenWrite();
    bench.Tell(Framed(PlainV1(1)));
    bench.Tell(End);
    bench.Open();
    bench.Tell(SendMemories);
    bench.Radio().PortClosed();
    EXPECT_EQ(bench.ReadAll(), Said(Framed(PlainV1(1))) + Said(End));
}

} // namespace
