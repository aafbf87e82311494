// The complete program, tested over its port.
#include "tests/simulator/PortClient.h"
#include "tests/support/Places.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace {

using namespace testbench;
namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr char Ack[] = "\x05";

std::chrono::milliseconds Since(Clock::time_point start) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
}

std::string FileOf(const TempFolder& folder, const std::string& lines) {
    std::ofstream(folder / "radio.txt") << lines;
    return folder / "radio.txt";
}

/// Sends a line and returns whether it was acknowledged.
bool IsTaken(PortClient& client, const std::string& line) {
    client.Send(line + "\r");
    return client.ReadUntil(Ack, 3s) == Ack;
}

/// Waits until the file has that many lines.
bool WaitForLines(const std::string& path, int count) {
    const auto end = Clock::now() + 5s;
    while (CountOf(ReadFileIfAny(path), "\n") < count && Clock::now() < end)
        std::this_thread::sleep_for(5ms);
    return CountOf(ReadFileIfAny(path), "\n") == count;
}

TEST(RadioPort, WritesAndReadsBackThroughARealPort) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KRV-214", "--banner", "HELLO"});
    ASSERT_EQ(radio.Port(), (folder / "ports/KRV-214").string()) << radio.Output();
    PortClient client(radio.Port());
    client.Send("rt\r4\rdl\r");
    EXPECT_TRUE(IsTaken(client, VhfLine("001")));
    EXPECT_TRUE(IsTaken(client, VhfLine("102")));
    client.Send(EndLine("300"));
    client.Close();
    PortClient reader(radio.Port());
    reader.Send("rt\r4\rul\r ");
    EXPECT_EQ(reader.ReadUntil("300\r"), "HELLO\r" + VhfLine("001") + "\r" + VhfLine("102") + "\r300\r");
}

TEST(RadioPort, PlaysTwoTransfersOverOneOpenPort) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--banner", ""});
    PortClient client(radio.Port());
    for (const char* number : {"001", "002"}) {
        client.Send("dl\r");
        EXPECT_TRUE(IsTaken(client, VhfLine(number)));
        client.Send(EndLine("300"));
    }
    for (int k = 0; k < 2; ++k) {
        client.Send("ul\r");
        EXPECT_EQ(client.ReadUntil("300\r"), VhfLine("001") + "\r" + VhfLine("002") + "\r300\r");
    }
}

TEST(RadioPort, CanSetBitSevenOnEveryByteThatItSends) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--banner", "", "--parity=bytes"});
    PortClient client(radio.Port());
    client.Send("dl\r" + VhfLine("001") + "\r");
    EXPECT_EQ(client.ReadUntil("\x85"), "\x85");
    client.Send(EndLine("300") + "ul\r");
    std::string expected = VhfLine("001") + "\r300\r";
    for (char& c : expected)
        c = static_cast<char>(c | 0x80);
    EXPECT_EQ(client.ReadUntil("\xB3\xB0\xB0\x8D"), expected);
}

TEST(RadioPort, TakesAWriteWhoseWriterClosesAtOnce) {
    const TempFolder folder;
    RadioInFolder radio(folder,
                        {"--model", "KDRV-4xxx:FM 138-174", "--once", "--memories", folder / "radio.txt"});
    PortClient client(radio.Port());
    client.Send("dl\r" + VhfLine("001") + "\r" + VhfLine("002") + "\r" + EndLine("300"));
    client.Close();
    EXPECT_EQ(radio.WaitForExit(), 0);
    EXPECT_EQ(ReadFile(folder / "radio.txt"),
              "# KDRV-4xxx FM 138-174\n" + VhfLine("001") + "\n" + VhfLine("002") + "\n");
}

TEST(RadioPort, LosesNothingOfAUserWhoComesAfterACompletedTransfer) {
    const TempFolder folder;
    const std::string log = folder / "log";
    RadioInFolder radio(folder, {"--model", "KRV-214", "--banner", "", "--log", log});
    for (int k = 0; k < 20; ++k) {
        PortClient writer(radio.Port());
        writer.Send("rt\r4\rdl\r");
        ASSERT_TRUE(IsTaken(writer, VhfLine("001"))) << k;
        writer.Send(EndLine("300"));
        writer.Close();
        // Data that arrive before the radio notices that its former user has gone may be lost.
        const auto deadline = Clock::now() + 5s;
        while (CountOf(ReadFileIfAny(log), "- port closed") < 2 * k + 1 && Clock::now() < deadline)
            std::this_thread::sleep_for(1ms);
        PortClient reader(radio.Port());
        reader.Send("rt\r4\rul\r ");
        ASSERT_EQ(reader.ReadUntil("300\r", 2s), VhfLine("001") + "\r300\r") << k;
        reader.Close();
        while (CountOf(ReadFileIfAny(log), "- port closed") < 2 * k + 2 && Clock::now() < deadline + 5s)
            std::this_thread::sleep_for(1ms);
    }
}

TEST(RadioPort, DropsWhatWasNotReadWhenItsUserGoes) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--all", "--log", folder / "log"});
    {
        PortClient client(radio.Port());
        client.Send("ul\r");
        ASSERT_TRUE(WaitForFileText(folder / "log", "> 002 "));
    }
    ASSERT_TRUE(WaitForFileText(folder / "log", "- port closed"));
    PortClient next(radio.Port());
    EXPECT_EQ(next.ReadUntilQuiet(200ms), "");
    next.Send("dl\r");
    EXPECT_TRUE(IsTaken(next, VhfLine("001"))) << "a new dialogue began";
}

TEST(RadioPort, ForgetsHalfACommandWhenItsUserGoes) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--log", folder / "log"});
    PortClient(radio.Port()).Send("d");
    ASSERT_TRUE(WaitForFileText(folder / "log", "- port closed"));
    PortClient next(radio.Port());
    next.Send("dl\r");
    EXPECT_TRUE(IsTaken(next, VhfLine("001")));
}

/// Returns the port's settings on opening, then leaves it with those of a terminal at another speed.
termios SettingsThenSpoilt(const std::string& port) {
    const int opened = open(port.c_str(), O_RDWR | O_NOCTTY);
    termios line{};
    EXPECT_EQ(tcgetattr(opened, &line), 0) << port;
    termios spoilt = line;
    cfsetspeed(&spoilt, B115200);
    spoilt.c_lflag |= ECHO | ICANON | ISIG;
    spoilt.c_iflag |= ICRNL | INLCR | IXON | ISTRIP;
    spoilt.c_oflag |= OPOST | ONLCR;
    tcsetattr(opened, TCSANOW, &spoilt);
    close(opened);
    return line;
}

TEST(RadioPort, IsRawAndAt9600ForEachUserWhateverTheLastOneSet) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KRV-214", "--log", folder / "log"});
    for (const char* user : {"first", "second"}) {
        const termios line = SettingsThenSpoilt(radio.Port());
        ASSERT_TRUE(WaitForFileText(folder / "log", "- port closed")) << user;
        EXPECT_EQ(cfgetospeed(&line), static_cast<speed_t>(B9600)) << user;
        EXPECT_EQ(line.c_lflag & (ECHO | ICANON | ISIG), 0u) << user;
        EXPECT_EQ(line.c_iflag & (ICRNL | INLCR | IXON | ISTRIP), 0u) << user;
        EXPECT_EQ(line.c_oflag & OPOST, 0u) << user;
        EXPECT_EQ(line.c_cflag & CSIZE, static_cast<tcflag_t>(CS8)) << user;
    }
}

TEST(RadioPort, StaysOutOfTheWayOfSomebodyWhoOnlyLooks) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174"});
    for (int k = 0; k < 50; ++k)
        PortClient(radio.Port()).Close();
    PortClient client(radio.Port());
    client.Send("dl\r");
    EXPECT_TRUE(IsTaken(client, VhfLine("001")));
}

TEST(RadioKey, IsPressedAfterItsDelay) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KRV-610:FM 138-174", "--key-delay", "300", "--banner", ""});
    PortClient client(radio.Port());
    const auto start = Clock::now();
    client.Send("ul\r");
    EXPECT_TRUE(client.ReadUntil("300\r").starts_with("001 "));
    EXPECT_GE(Since(start), 300ms);
}

TEST(RadioKey, IsPressedByASignal) {
    const TempFolder folder;
    RadioInFolder radio(folder,
                        {"--model", "KRV-610:FM 138-174", "--key-delay", "60000", "--log", folder / "log"});
    PortClient client(radio.Port());
    client.Send("ul\r");
    EXPECT_EQ(client.ReadUntilQuiet(150ms), "");
    radio.Signal(SIGUSR1);
    EXPECT_TRUE(client.ReadUntil("300\r").ends_with("\r300\r"));
    EXPECT_NE(ReadFile(folder / "log").find("- key pressed"), std::string::npos);
}

/// Seconds that the bytes take on the line: 10 bits each.
double LineTime(size_t bytes, int baud) {
    return static_cast<double>(bytes) * 10 / baud;
}

TEST(Pacing, DeliversNoFasterThanTheSpeedOfThePort) {
    const TempFolder folder;
    const std::string file =
        FileOf(folder, VhfLine("001") + "\n" + VhfLine("002") + "\n" + VhfLine("003") + "\n");
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--pace", "--memories", file});
    PortClient client(radio.Port());
    const auto start = Clock::now();
    client.Send("ul\r");
    const std::string text = client.ReadUntil("300\r");
    const auto passed = std::chrono::duration<double>(Clock::now() - start).count();
    EXPECT_GT(text.size(), 230u);
    EXPECT_GE(passed, LineTime(text.size() + 3, 9600));
    EXPECT_LT(passed, LineTime(text.size() + 3, 9600) + 0.5);
}

TEST(Pacing, AcceptsNoFasterThanTheSpeedOfThePort) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--pace"});
    PortClient client(radio.Port());
    const auto start = Clock::now();
    client.Send("dl\r" + VhfLine("001") + "\r" + VhfLine("002") + "\r" + VhfLine("003") + "\r");
    EXPECT_EQ(client.ReadUntil("\x05\x05\x05"), "\x05\x05\x05");
    EXPECT_GE(std::chrono::duration<double>(Clock::now() - start).count(), LineTime(3 + 3 * 77 + 1, 9600));
}

TEST(Pacing, FollowsAFasterSpeed) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--pace", "--all"});
    PortClient client(radio.Port(), 115200);
    const auto start = Clock::now();
    client.Send("ul\r");
    const std::string text = client.ReadUntil("\r300\r");
    const auto passed = std::chrono::duration<double>(Clock::now() - start).count();
    EXPECT_GT(text.size(), 200u * 77);
    EXPECT_GE(passed, LineTime(text.size(), 115200));
    EXPECT_LT(passed, LineTime(text.size(), 9600) / 4) << "far below the 16 s of 9600 baud";
}

TEST(Pacing, IsOffUnlessAskedFor) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KDRV-4xxx:FM 138-174", "--all"});
    PortClient client(radio.Port());
    const auto start = Clock::now();
    client.Send("ul\r");
    EXPECT_GT(client.ReadUntil("\r300\r").size(), 200u * 77);
    EXPECT_LT(Since(start), 5s);
}

TEST(RadioProgram, UsesNoProcessorTimeWhileItWaits) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KRV-610:FM 138-174", "--key-delay", "60000"});
    PortClient(radio.Port()).Close();
    std::this_thread::sleep_for(300ms);
    PortClient client(radio.Port());
    client.Send("ul\r");
    std::this_thread::sleep_for(300ms);
    EXPECT_LE(radio.ProcessorTime(), 60ms);
}

TEST(RadioProgram, RemovesItsLinkWhenItIsEnded) {
    for (int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const TempFolder folder;
        RadioInFolder radio(folder, {"--model", "KRV-214"});
        ASSERT_TRUE(fs::is_symlink(folder / "ports/KRV-214")) << radio.Output();
        radio.Signal(signal);
        EXPECT_EQ(radio.WaitForExit(), 0) << signal;
        EXPECT_TRUE(fs::is_empty(folder / "ports")) << signal;
    }
}

TEST(RadioProgram, ReplacesTheLinkOfOneThatWasKilled) {
    const TempFolder folder;
    RadioInFolder killed(folder, {"--model", "KRV-214"});
    killed.Signal(SIGKILL);
    ASSERT_EQ(killed.WaitForExit(), 128 + SIGKILL);
    ASSERT_TRUE(fs::is_symlink(folder / "ports/KRV-214")) << "no one could clean up";
    RadioInFolder radio(folder, {"--model", "KRV-214", "--banner", ""});
    ASSERT_EQ(radio.Port(), (folder / "ports/KRV-214").string()) << radio.Output();
    PortClient client(radio.Port());
    client.Send("rt\r4\rul\r ");
    EXPECT_TRUE(client.ReadUntil("300\r").starts_with("001 "));
}

TEST(RadioProgram, RefusesANameThatIsPlayed) {
    const TempFolder folder;
    RadioInFolder first(folder, {"--model", "KRV-214"});
    RadioInFolder second(folder, {"--model", "KRV-214"});
    EXPECT_EQ(second.Port(), "");
    EXPECT_EQ(second.WaitForExit(), 1);
    EXPECT_NE(second.Output().find("is played by another zelk-radio"), std::string::npos) << second.Output();
    RadioInFolder third(folder, {"--model", "KRV-214", "--name", "spare"});
    EXPECT_EQ(third.Port(), (folder / "ports/spare").string());
    PortClient client(first.Port());
    EXPECT_TRUE(client.IsOpen()) << "the first goes on";
}

TEST(RadioProgram, PutsItsLinkIntoTheProgramsFolderByItself) {
    const TempFolder folder;
    RadioProcess radio(testbench::RadioProgram(), {"--model", "KRV-305"},
                       {.environment = {{"HOME", folder.Path()}}});
    EXPECT_EQ(radio.Port(), (folder / ".zelk/ports/KRV-305").string()) << radio.Output();
    EXPECT_TRUE(fs::is_symlink(folder / ".zelk/ports/KRV-305"));
}

TEST(RadioProgram, KeepsItsMemoriesOverARestart) {
    const TempFolder folder;
    const std::vector<std::string> arguments = {"--model", "KDRV-4xxx:FM 138-174", "--banner",
                                                "",        "--memories",           folder / "radio.txt"};
    {
        RadioInFolder radio(folder, arguments);
        PortClient client(radio.Port());
        client.Send("dl\r");
        EXPECT_TRUE(IsTaken(client, VhfLine("001")));
        EXPECT_TRUE(IsTaken(client, VhfLine("044"))) << "and the transfer is never completed";
        EXPECT_EQ(radio.Terminate(), 0);
    }
    RadioInFolder radio(folder, arguments);
    PortClient client(radio.Port());
    client.Send("ul\r");
    EXPECT_EQ(client.ReadUntil("300\r"), VhfLine("001") + "\r" + VhfLine("044") + "\r300\r");
}

TEST(RadioProgram, DoesNotStartWithAMemoryFileThatItCannotHold) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KRV-214", "--memories", FileOf(folder, "nonsense\n")});
    EXPECT_EQ(radio.WaitForExit(), 1);
    EXPECT_NE(radio.Output().find("radio.txt:1: length is 8"), std::string::npos) << radio.Output();
    EXPECT_EQ(ReadFile(folder / "radio.txt"), "nonsense\n");
}

TEST(RadioProgram, EndsAfterOneCompletedTransferIfAskedTo) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KRV-214", "--once", "--log", folder / "log"});
    PortClient(radio.Port()).Send("rt\r4\r");
    ASSERT_TRUE(WaitForFileText(folder / "log", "- port closed"));
    EXPECT_EQ(radio.WaitForExit(200), std::nullopt) << "that was no transfer";
    {
        PortClient client(radio.Port());
        client.Send("rt\r4\rul\r ");
        client.ReadUntil("300\r");
        EXPECT_EQ(radio.WaitForExit(200), std::nullopt) << "the port is still open";
    }
    EXPECT_EQ(radio.WaitForExit(), 0);
}

TEST(RadioProgram, AnswersListAndHelp) {
    const TempFolder folder;
    RadioInFolder list(folder, {"--list"});
    EXPECT_EQ(list.WaitForExit(), 0);
    EXPECT_NE(list.Output().find("KRV-656      FM 66-88"), std::string::npos) << list.Output();
    RadioInFolder help(folder, {"--help"});
    EXPECT_EQ(help.WaitForExit(), 0);
    EXPECT_NE(help.Output().find("--guard-names"), std::string::npos) << help.Output();
    RadioInFolder wrong(folder, {"--modle", "KRV-214"});
    EXPECT_EQ(wrong.WaitForExit(), 2);
}

TEST(RadioLog, HoldsBothDirectionsWithTheirTimes) {
    const TempFolder folder;
    RadioInFolder radio(folder, {"--model", "KRV-214", "--banner", "HELLO", "--log", folder / "log"});
    {
        PortClient client(radio.Port());
        client.Send("rt\r4\rdl\r");
        EXPECT_TRUE(IsTaken(client, VhfLine("001")));
        client.Send("bad\x01\r" + EndLine("300") + "rt\r4\rul\r ");
        client.ReadUntil("300\r");
    }
    ASSERT_TRUE(WaitForFileText(folder / "log", "- port closed"));
    const std::string log = ReadFile(folder / "log");
    for (const std::string& entry :
         {std::string("- port opened"), std::string("< rt"), std::string("< 4"), std::string("< dl"),
          "< " + VhfLine("001"), std::string("> \\x05"), std::string("< bad\\x01"),
          std::string("? refused \"bad\\x01\": length is 4, not 76"), "< 300" + std::string(74, ' '),
          std::string("> HELLO"), "> " + VhfLine("001"), std::string("> 300")})
        EXPECT_NE(log.find(" " + entry + "\n"), std::string::npos) << entry << "\nin\n" << log;
    long last = 0;
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        const long time = std::stol(line);
        EXPECT_GE(time, last) << line;
        last = time;
    }
    EXPECT_TRUE(radio.WaitForLine("zelk-radio: refused")) << "and the user sees the refusal";
}

TEST(RadioReplyTimes, HoldATimeForEachAnswerThatTheProgramRepliedTo) {
    const TempFolder folder;
    const std::string file = folder / "times";
    RadioInFolder radio(folder, {"--model", "KRV-214", "--reply-times", file, "--log", folder / "log"});
    {
        PortClient client(radio.Port());
        client.Send("rt\r4\rdl\r");
        EXPECT_TRUE(IsTaken(client, VhfLine("001")));
        std::this_thread::sleep_for(50ms);
        EXPECT_TRUE(IsTaken(client, VhfLine("002")));
    }
    ASSERT_TRUE(WaitForFileText(folder / "log", "- port closed"));
    {
        PortClient client(radio.Port());
        client.Send("rt\r4\rdl\r");
        EXPECT_TRUE(IsTaken(client, VhfLine("003")));
        std::this_thread::sleep_for(20ms);
        client.Send(EndLine("300"));
        ASSERT_TRUE(WaitForLines(file, 2)) << ReadFile(file) << "the answer to 002 has no reply";
    }
    std::istringstream times(ReadFile(file));
    double first = 0, second = 0;
    times >> first >> second;
    EXPECT_GE(first, 50'000);
    EXPECT_GE(second, 20'000);
}

} // namespace
