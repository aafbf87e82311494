// Faults as the other side of the port sees them.
#include "tests/simulator/PortClient.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>

namespace {

using namespace testbench;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr char Ack[] = "\x05";
const std::string Noise("\x00\xFF\x80\x1B\xFE\x7F\x00\xF5", 8);

/// A radio with one fault and memories 1 to 3, and an open port.
class RadioFault : public testing::Test {
protected:
    void Start(const std::string& fault, std::vector<std::string> more = {}) {
        std::ofstream(m_folder / "radio.txt") << m_lines[0] << "\n"
                                              << m_lines[1] << "\n"
                                              << m_lines[2] << "\n";
        more.insert(more.end(), {"--model", "KDRV-4xxx:FM 138-174", "--banner", "", "--fault", fault, "--log",
                                 m_folder / "log", "--memories", m_folder / "radio.txt"});
        m_radio.emplace(m_folder, more);
        m_client.emplace(m_radio->Port());
        ASSERT_TRUE(m_client->IsOpen()) << m_radio->Output();
    }

    std::string ReadAll() {
        m_client->Send("ul\r");
        return m_client->ReadUntil("300\r");
    }

    std::string AnswerTo(const std::string& line) {
        m_client->Send(line + "\r");
        return m_client->ReadUntil(Ack);
    }

    /// Sends a line and returns what comes in the next 200 ms.
    std::string SilenceAfter(const std::string& line) {
        m_client->Send(line + "\r");
        return m_client->ReadUntilQuiet(200ms);
    }

    /// True if the log reports the fault.
    bool IsLogged(const std::string& fault) {
        return WaitForFileText(m_folder / "log", " ! " + fault + "\n");
    }

    const TempFolder m_folder;
    const std::string m_lines[3] = {VhfLine("001"), VhfLine("002"), VhfLine("003")};
    std::optional<RadioInFolder> m_radio;
    std::optional<PortClient> m_client;
};

TEST_F(RadioFault, SilenceOnReadingEndsTheListEarly) {
    Start("silence@3");
    m_client->Send("ul\r");
    EXPECT_EQ(m_client->ReadUntil(m_lines[1] + "\r"), m_lines[0] + "\r" + m_lines[1] + "\r");
    EXPECT_EQ(m_client->ReadUntilQuiet(300ms), "");
    EXPECT_TRUE(IsLogged("silence@3"));
}

TEST_F(RadioFault, SilenceOnWritingLeavesTheRestUnwritten) {
    Start("silence@2");
    m_client->Send("dl\r");
    EXPECT_EQ(AnswerTo(VhfLine("101")), Ack);
    EXPECT_EQ(SilenceAfter(VhfLine("102")), "");
    EXPECT_EQ(SilenceAfter(VhfLine("103")), "");
    m_client->Close();
    ASSERT_TRUE(WaitForFileText(m_folder / "log", "- port closed"));
    EXPECT_EQ(m_radio->Terminate(), 0);
    const std::string file = ReadFile(m_folder / "radio.txt");
    EXPECT_NE(file.find("\n101 "), std::string::npos);
    EXPECT_EQ(file.find("\n102 "), std::string::npos);
}

TEST_F(RadioFault, SilentRadioAnswersAgainOnceThePortWasClosed) {
    Start("silence@1/1");
    m_client->Send("dl\r");
    EXPECT_EQ(SilenceAfter(VhfLine("101")), "");
    m_client.reset();
    ASSERT_TRUE(WaitForFileText(m_folder / "log", "- port closed"));
    m_client.emplace(m_radio->Port());
    m_client->Send("dl\r");
    EXPECT_EQ(AnswerTo(VhfLine("101")), Ack);
}

TEST_F(RadioFault, LateAcknowledgementComesAfterItsDelay) {
    Start("late-ack@2", {"--late", "400"});
    m_client->Send("dl\r");
    EXPECT_EQ(AnswerTo(VhfLine("101")), Ack);
    const auto start = Clock::now();
    m_client->Send(VhfLine("102") + "\r");
    EXPECT_EQ(m_client->ReadUntil(Ack), Ack);
    EXPECT_GE(Clock::now() - start, 400ms);
    EXPECT_EQ(AnswerTo(VhfLine("103")), Ack);
    EXPECT_TRUE(IsLogged("late-ack@2"));
}

TEST_F(RadioFault, LateAcknowledgementIsForgottenWhenItsUserGoes) {
    Start("late-ack@1", {"--late", "300"});
    m_client->Send("dl\r" + VhfLine("101") + "\r");
    ASSERT_TRUE(IsLogged("late-ack@1"));
    m_client.reset();
    ASSERT_TRUE(WaitForFileText(m_folder / "log", "- port closed"));
    m_client.emplace(m_radio->Port());
    EXPECT_EQ(m_client->ReadUntilQuiet(500ms), "");
}

TEST_F(RadioFault, MissingAcknowledgementStandsAlone) {
    Start("no-ack@2");
    m_client->Send("dl\r");
    EXPECT_EQ(AnswerTo(VhfLine("101")), Ack);
    EXPECT_EQ(SilenceAfter(VhfLine("102")), "");
    EXPECT_EQ(AnswerTo(VhfLine("103")), Ack);
    EXPECT_TRUE(IsLogged("no-ack@2"));
}

TEST_F(RadioFault, NoiseComesBeforeItsLine) {
    Start("noise@2");
    EXPECT_EQ(ReadAll(), m_lines[0] + "\r" + Noise + m_lines[1] + "\r" + m_lines[2] + "\r300\r");
    EXPECT_TRUE(IsLogged("noise@2"));
}

TEST_F(RadioFault, NoiseComesBeforeItsAcknowledgement) {
    Start("noise@1");
    m_client->Send("dl\r");
    EXPECT_EQ(AnswerTo(VhfLine("101")), Noise + Ack);
    EXPECT_EQ(AnswerTo(VhfLine("102")), Ack);
}

TEST_F(RadioFault, TornLineArrivesWholeButSlowly) {
    Start("torn@2");
    const auto start = Clock::now();
    EXPECT_EQ(ReadAll(), m_lines[0] + "\r" + m_lines[1] + "\r" + m_lines[2] + "\r300\r");
    EXPECT_GE(Clock::now() - start, 3 * 150ms);
    EXPECT_TRUE(IsLogged("torn@2"));
}

TEST_F(RadioFault, CutLineBreaksOff) {
    Start("cut@2");
    EXPECT_EQ(ReadAll(), m_lines[0] + "\r" + m_lines[1].substr(0, 38) + "\r" + m_lines[2] + "\r300\r");
    EXPECT_TRUE(IsLogged("cut@2"));
}

TEST_F(RadioFault, UnplugOnReadingTakesDeviceAndLinkAway) {
    Start("unplug@2");
    m_client->Send("ul\r");
    EXPECT_TRUE(m_client->HasVanished(3s));
    EXPECT_EQ(m_radio->WaitForExit(), 0);
    EXPECT_FALSE(std::filesystem::is_symlink(m_folder / "ports/KDRV-4xxx"));
    EXPECT_TRUE(IsLogged("unplug@2"));
}

TEST_F(RadioFault, UnplugOnWritingKeepsWhatWasWritten) {
    Start("unplug@2");
    m_client->Send("dl\r");
    EXPECT_EQ(AnswerTo(VhfLine("101")), Ack);
    m_client->Send(VhfLine("102") + "\r");
    EXPECT_TRUE(m_client->HasVanished(3s));
    EXPECT_EQ(m_radio->WaitForExit(), 0);
    EXPECT_NE(ReadFile(m_folder / "radio.txt").find("\n101 "), std::string::npos);
}

TEST_F(RadioFault, SeveralFaultsArePlayedInOneTransfer) {
    Start("cut@1", {"--fault", "noise@3"});
    EXPECT_EQ(ReadAll(),
              m_lines[0].substr(0, 38) + "\r" + m_lines[1] + "\r" + Noise + m_lines[2] + "\r300\r");
}

} // namespace
