// The complete program as a digital radio, tested over its port.
#include "tests/simulator/DigitalBench.h"
#include "tests/simulator/PortClient.h"

#include <unistd.h>

#include <csignal>
#include <fstream>

namespace {

using namespace digitaltest;
using namespace testbench;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Returns the answer to a line, without its carriage return.
std::string Ask(PortClient& client, const std::string& line) {
    client.Send(line + "\r");
    std::string answer = client.ReadUntil("\r", 3s);
    if (!answer.empty())
        answer.pop_back();
    return answer;
}

/// Opens a dialogue of protocol 2, including the speed change.
void Open(PortClient& client) {
    ASSERT_EQ(Ask(client, Hello2), Ack);
    ASSERT_EQ(Ask(client, ChangeSpeed), Ack);
    client.SetSpeed(115200);
}

TEST(DigitalPort, WritesAndReadsBackAtBothSpeedsAndKeepsTheFile) {
    const TempFolder folder;
    RadioInFolder radio(folder,
                        {"--model", "KDRV-716B", "--memories", folder / "m", "--log", folder / "log"});
    ASSERT_EQ(radio.Port(), (folder / "ports/KDRV-716B").string()) << radio.Output();
    {
        PortClient client(radio.Port());
        Open(client);
        EXPECT_EQ(Ask(client, TakeMemories), Ack);
        EXPECT_EQ(Ask(client, Framed(PlainV2(1))), Ack);
        client.Send(std::string(End) + "\r");
    }
    ASSERT_TRUE(WaitForFileText(folder / "log", "- port closed"));
    {
        PortClient client(radio.Port());
        Open(client);
        EXPECT_EQ(Ask(client, SendMemories), Ack);
        EXPECT_EQ(Ask(client, Ack), Framed(PlainV2(1)));
        EXPECT_EQ(Ask(client, Ack), End);
    }
    EXPECT_EQ(radio.Terminate(), 0) << radio.Output();
    EXPECT_EQ(ReadFile(folder / "m"), "# KDRV-716B FM 136-174\n2 " + Framed(PlainV2(1)) + "\n");
    EXPECT_NE(ReadFile(folder / "log").find("> " + Framed(PlainV2(1)) + "\n"), std::string::npos);
}

TEST(DigitalPort, EndsWithThreeAndTellsWhenTheRulesWereBroken) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-716", "--log", folder / "log"});
    PortClient client(radio.Port());
    EXPECT_EQ(Ask(client, Hello0), Ack);
    EXPECT_EQ(Ask(client, TakeMemories), Ack);
    EXPECT_EQ(Ask(client, Framed(With(PlainV1(1), 32, "00"))), Nak);
    EXPECT_EQ(radio.Terminate(), 3);
    EXPECT_NE(radio.Output().find("position 32: separator"), std::string::npos) << radio.Output();
    EXPECT_NE(ReadFile(folder / "log").find(" ? refused: "), std::string::npos);
}

TEST(DigitalPort, HearsGarbageAtTheWrongSpeed) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-716B"});
    PortClient client(radio.Port());
    EXPECT_EQ(Ask(client, Hello2), Ack);
    EXPECT_EQ(Ask(client, ChangeSpeed), Ack);
    client.Send(std::string(ReadModes) + "\r");
    EXPECT_EQ(client.ReadUntilQuiet(200ms), "") << "still at 9600";
    client.SetSpeed(115200);
    EXPECT_EQ(Ask(client, ReadModes), Framed("T20500003370"));
    client.Close();
    EXPECT_EQ(radio.Terminate(), 3);
    EXPECT_NE(radio.Output().find("garbage: the port is at 9600 baud, the radio at 115200"),
              std::string::npos)
        << radio.Output();
}

TEST(DigitalPort, AfterACloseListensAt9600Again) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-716B", "--log", folder / "log"});
    for (int k = 1; k <= 3; ++k) {
        PortClient client(radio.Port());
        Open(client);
        EXPECT_EQ(Ask(client, ReadModes), Framed("T20500003370")) << k;
        client.Close();
        const auto deadline = Clock::now() + 5s;
        while (CountOf(ReadFileIfAny(folder / "log"), "- port closed") < k && Clock::now() < deadline)
            usleep(1000);
    }
    EXPECT_EQ(radio.Terminate(), 0) << radio.Output();
}

// The radio is stopped meanwhile, so that it receives the old user's last bytes and the new user's first ones
// together.
TEST(DigitalPort, TellsAUserWhoBrokeOffFromTheNextOne) {
    for (bool polite : {false, true}) {
        const TempFolder folder;
        RadioInFolder radio(folder, {"--model", "KDRV-716B", "--memories", folder / "m"});
        PortClient first(radio.Port());
        Open(first);
        EXPECT_EQ(Ask(first, TakeMemories), Ack);
        EXPECT_EQ(Ask(first, Framed(PlainV2(1))), Ack);
        radio.Signal(SIGSTOP);
        if (polite)
            first.Send(std::string(End) + "\r");
        first.Close();
        PortClient second(radio.Port());
        second.Send(std::string(Hello2) + "\r");
        radio.Signal(SIGCONT);
        EXPECT_EQ(second.ReadUntil("\r", 3s), std::string(Ack) + "\r") << polite;
        EXPECT_EQ(ReadFileIfAny(folder / "m").empty(), !polite);
        EXPECT_EQ(radio.Terminate(), 0) << polite << radio.Output();
        EXPECT_NE(ReadFileIfAny(folder / "m"), "") << polite;
    }
}

TEST(DigitalPort, OnceEndsAfterAWriteWhoseWriterClosesAtOnce) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-716B", "--once", "--memories", folder / "m"});
    PortClient client(radio.Port());
    Open(client);
    EXPECT_EQ(Ask(client, TakeMemories), Ack);
    EXPECT_EQ(Ask(client, Framed(PlainV2(502))), Ack);
    client.Send(std::string(End) + "\r");
    client.Close();
    EXPECT_EQ(radio.WaitForExit(), 0) << radio.Output();
    EXPECT_NE(ReadFile(folder / "m").find(Framed(PlainV2(502))), std::string::npos);
}

// No transfer is faster than its line, at 10 bits a byte. A busy machine may slow it down by any amount.
TEST(DigitalPort, PacesBothSpeeds) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-716B", "--pace"});
    PortClient client(radio.Port());
    const auto Time = [](const auto& act) {
        const auto start = Clock::now();
        act();
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    };
    const double hello = Time([&] { EXPECT_EQ(Ask(client, Hello2), Ack); });
    EXPECT_GE(hello, (19 + 13) * 10 / 9.6 * 0.95) << "32 bytes at 9600 baud";
    EXPECT_EQ(Ask(client, ChangeSpeed), Ack);
    client.SetSpeed(115200);
    EXPECT_EQ(Ask(client, TakeMemories), Ack);
    double fast = 1e9;
    const double all = Time([&] {
        for (unsigned number = 1; number <= 10; ++number)
            fast = std::min(fast, Time([&] { EXPECT_EQ(Ask(client, Framed(PlainV2(number))), Ack); }));
    });
    EXPECT_GE(all, 10 * (139 + 13) * 10 / 115.2 * 0.95) << "1520 bytes at 115200 baud";
    EXPECT_LT(fast, (139 + 13) * 10 / 9.6) << "faster than 9600 baud allows";
}

TEST(DigitalPort, RefusesABadMemoryFileAndLeavesIt) {
    const TempFolder folder;
    std::ofstream(folder / "m") << "1 T143\n";
    RadioInFolder radio(folder, {"--model", "KDRV-716", "--memories", folder / "m"});
    EXPECT_EQ(radio.Port(), "");
    EXPECT_EQ(radio.WaitForExit(), 1);
    EXPECT_NE(radio.Output().find("/m:1: "), std::string::npos) << radio.Output();
    EXPECT_EQ(ReadFile(folder / "m"), "1 T143\n");
}

TEST(DigitalPort, RefusesListFilesThatCannotBeRead) {
    const TempFolder folder;
    for (const char* option : {"--hardware", "--debug-log"}) {
        RadioInFolder radio(folder, {"--model", "KDRV-716B", option, folder / "none"});
        EXPECT_EQ(radio.WaitForExit(), 1) << option;
    }
}

TEST(DigitalPort, UnplugTakesTheDeviceAway) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-716", "--fault", "unplug@1", "--memories", folder / "m"});
    PortClient client(radio.Port());
    EXPECT_EQ(Ask(client, Hello0), Ack);
    EXPECT_EQ(Ask(client, TakeMemories), Ack);
    client.Send(Framed(PlainV1(1)) + "\r");
    EXPECT_TRUE(client.HasVanished(3s));
    EXPECT_EQ(radio.WaitForExit(), 0);
    EXPECT_NE(ReadFile(folder / "m").find(Framed(PlainV1(1))), std::string::npos);
}

} // namespace
