// The complete program at a serial port that it was given. The test is the program at the other end.
#include "tests/simulator/DigitalBench.h"
#include "tests/simulator/PortClient.h"
#include "tests/support/Places.h"
#include "tests/support/PseudoTerminal.h"

#include <chrono>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace digitaltest;
using namespace testbench;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// zelk-radio at a device of the test's, whose log is in the test's folder.
class GivenPort : public testing::Test {
protected:
    RadioProcess Play(std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {"--port", m_line.SlaveName(), "--log", Log()});
        return RadioProcess(testbench::RadioProgram(), arguments);
    }

    std::string Log() const { return m_folder / "log"; }
    void Send(const std::string& bytes) { m_line.Write(bytes); }

    /// Returns the answer to a line, without its carriage return.
    std::string Ask(const std::string& line) {
        Send(line + "\r");
        std::string answer = m_line.ReadUntil('\r', 5s);
        if (!answer.empty())
            answer.pop_back();
        return answer;
    }

    /// Sends a channel line and returns whether it was acknowledged.
    bool IsTaken(const std::string& line) {
        Send(line + "\r");
        return m_line.Read(1, 5s) == "\x05";
    }

    void ChangeToFastSpeed() {
        ASSERT_EQ(Ask(Hello2), Ack);
        ASSERT_EQ(Ask(ChangeSpeed), Ack);
        EXPECT_TRUE(HasSpeed(B115200));
    }

    /// Waits until the radio has set its end of the line to this speed.
    bool HasSpeed(speed_t speed) const {
        const auto end = Clock::now() + 5s;
        while (m_line.Speed() != speed && Clock::now() < end)
            std::this_thread::sleep_for(1ms);
        return m_line.Speed() == speed;
    }

    TempFolder m_folder;
    PseudoTerminal m_line;
};

TEST_F(GivenPort, IsNamedInPlaceOfALinkAndCarriesAWriteAndARead) {
    RadioProcess radio = Play({"--model", "KRV-214", "--banner", ""});
    EXPECT_EQ(radio.Port(), m_line.SlaveName()) << radio.Output();
    Send("rt\r4\rdl\r");
    EXPECT_TRUE(IsTaken(VhfLine("001")));
    Send(EndLine("300") + "rt\r4\rul\r ");
    EXPECT_EQ(m_line.ReadUntil('\r', 5s), VhfLine("001") + "\r");
    EXPECT_EQ(m_line.ReadUntil('\r', 5s), "300\r");
    EXPECT_EQ(radio.Terminate(), 0) << radio.Output();
}

TEST_F(GivenPort, AnOpeningInTheMiddleOfAWriteBeginsANewTransfer) {
    RadioProcess radio = Play({"--model", "KRV-214", "--banner", ""});
    Send("rt\r4\rdl\r");
    EXPECT_TRUE(IsTaken(VhfLine("001")));
    Send("rt\r4\rul\r ");
    EXPECT_EQ(m_line.ReadUntil('\r', 5s), VhfLine("001") + "\r");
    EXPECT_EQ(CountOf(ReadFileIfAny(Log()), "? refused"), 0);
}

TEST_F(GivenPort, ACommandInTheMiddleOfAWriteBeginsANewTransferOfRadiosWithoutOpening) {
    RadioProcess radio = Play({"--model", "KDRV-4xxx:FM 138-174", "--banner", ""});
    Send("dl\r");
    EXPECT_TRUE(IsTaken(VhfLine("001")));
    Send("ul\r");
    EXPECT_EQ(m_line.ReadUntil('\r', 5s), VhfLine("001") + "\r");
}

TEST_F(GivenPort, FollowsTheRadioToTheFastSpeedAndBack) {
    RadioProcess radio = Play({"--model", "KDRV-716B", "--memories", m_folder / "m"});
    EXPECT_EQ(m_line.Speed(), speed_t(B9600));
    ChangeToFastSpeed();
    EXPECT_EQ(Ask(TakeMemories), Ack);
    EXPECT_EQ(Ask(Framed(PlainV2(1))), Ack);
    Send(std::string(End) + "\r");
    EXPECT_TRUE(HasSpeed(B9600));
    ChangeToFastSpeed();
    EXPECT_EQ(Ask(SendMemories), Ack);
    EXPECT_EQ(Ask(Ack), Framed(PlainV2(1)));
    EXPECT_EQ(Ask(Ack), End);
    EXPECT_EQ(radio.Terminate(), 0) << radio.Output();
}

TEST_F(GivenPort, AHelloInTheMiddleOfADialogueBeginsANewOne) {
    RadioProcess radio = Play({"--model", "KDRV-716B"});
    ChangeToFastSpeed();
    EXPECT_EQ(Ask(TakeMemories), Ack);
    ChangeToFastSpeed();
    EXPECT_EQ(radio.Terminate(), 0) << radio.Output();
}

TEST_F(GivenPort, SilenceEndsAnUnfinishedDialogue) {
    RadioProcess radio = Play({"--model", "KDRV-716B"});
    ChangeToFastSpeed();
    ASSERT_EQ(CountOf(ReadFileIfAny(Log()), "- line quiet"), 0);
    const auto end = Clock::now() + 60s;
    while (CountOf(ReadFileIfAny(Log()), "- line quiet") == 0 && Clock::now() < end)
        std::this_thread::sleep_for(50ms);
    EXPECT_TRUE(HasSpeed(B9600));
    EXPECT_EQ(CountOf(ReadFileIfAny(Log()), "- line in use"), 1);
}

TEST_F(GivenPort, OnceEndsAfterTheFirstTransfer) {
    RadioProcess radio = Play({"--model", "KDRV-4xxx:FM 138-174", "--once", "--memories", m_folder / "m"});
    Send("dl\r");
    EXPECT_TRUE(IsTaken(VhfLine("001")));
    Send(EndLine("300"));
    EXPECT_EQ(radio.WaitForExit(), 0) << radio.Output();
    EXPECT_NE(ReadFile(m_folder / "m").find(VhfLine("001")), std::string::npos);
}

TEST_F(GivenPort, ThatVanishesIsToldAndTheMemoriesAreKept) {
    RadioProcess radio = Play({"--model", "KDRV-4xxx:FM 138-174", "--memories", m_folder / "m"});
    Send("dl\r");
    EXPECT_TRUE(IsTaken(VhfLine("001")));
    m_line.CloseMaster();
    EXPECT_EQ(radio.WaitForExit(), 1);
    EXPECT_NE(radio.Output().find(m_line.SlaveName() + " has gone"), std::string::npos) << radio.Output();
    EXPECT_NE(ReadFile(m_folder / "m").find(VhfLine("001")), std::string::npos);
}

TEST_F(GivenPort, ThatCannotBePlayedOnIsRefused) {
    const std::string file = m_folder / "file";
    WriteFile(file, "text");
    for (const auto& [name, reason] :
         std::vector<std::pair<std::string, std::string>>{{m_folder / "none", "No such file"},
                                                          {file, "no serial port"},
                                                          {"/dev/null", "no serial port"}}) {
        RadioProcess radio(testbench::RadioProgram(), {"--model", "KRV-214", "--port", name});
        EXPECT_EQ(radio.WaitForExit(), 1) << name;
        EXPECT_NE(radio.Output().find(name + ": "), std::string::npos) << radio.Output();
        EXPECT_NE(radio.Output().find(reason), std::string::npos) << radio.Output();
    }
    RadioProcess first = Play({"--model", "KRV-214"});
    // Administrators may open what another program has for itself, so that only the lock is left.
    RadioProcess second(testbench::RadioProgram(), {"--model", "KRV-214", "--port", m_line.SlaveName()});
    EXPECT_EQ(second.WaitForExit(), 1);
    EXPECT_EQ(second.Port(), "");
}

} // namespace
