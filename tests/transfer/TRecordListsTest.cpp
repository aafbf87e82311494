// Hardware, debug log and configuration in a digital transfer.
#include "tests/transfer/TRecordDriverTest.h"
#include "tests/transfer/TRecordTalk.h"

#include <filesystem>

using namespace testbench;
using namespace transfertest;

TEST_F(TRecordDriver, HardwareWithoutALogHasNoSerialNumberAndNoFile) {
    std::filesystem::create_directory("Logs");
    EXPECT_EQ(Transfer(Transcript(HardwareOf("K7A42") + End), ReadInformationMode), TransferComplete);
    EXPECT_EQ(Text(m_context.RadioSerial), "UNKNOWN");
    EXPECT_EQ(Text(RadioSerial), "");
    ASSERT_EQ(m_context.InfoLines.size(), 2u);
    EXPECT_EQ(Text(m_context.InfoLines[1]), "Board 3");
    EXPECT_TRUE(std::filesystem::is_empty("Logs"));
}

TEST_F(TRecordDriver, HardwareWithoutItsFolderHasNoFile) {
    AskForWorkingLog();
    EXPECT_EQ(Transfer(Transcript(HardwareOf("K7A42") + End), ReadInformationMode), TransferComplete);
    EXPECT_EQ(Text(m_context.RadioSerial), "K7A42");
    EXPECT_EQ(Text(m_context.Scratch), "Logs/K7A42.txt");
    EXPECT_EQ(m_context.InfoLines.size(), 2u);
    EXPECT_FALSE(std::filesystem::exists("Logs"));
}

TEST_F(TRecordDriver, HardwareFileOfAnInterruptedReadIsClosedWithWhatCame) {
    AskForWorkingLog();
    std::filesystem::create_directory("Logs");
    const DialogScript noBox;
    EXPECT_EQ(Transfer(Transcript(HardwareOpening() + DataRecord("K7A42") + Sends("T204000000") +
                                  DataRecord("Board 3") + Sends("T204000000") + "@cancel\n" + End),
                       ReadInformationMode),
              TransferCancelled);
    EXPECT_NE(ReadText("Logs/K7A42.txt").find("Board 3\n"), std::string::npos);
}

TEST_F(TRecordDriver, SerialNumberLeadsToNoOtherFolder) {
    m_context.LogFile.Open("Zelk.log", "w");
    std::filesystem::create_directories("Logs/deep");
    std::filesystem::create_directory("KDRV-716_..");
    WriteFile("precious.txt", "precious");
    for (const char* serial : {"../precious", "deep/new", "../new", "..\\new", "a\nb"}) {
        SCOPED_TRACE(serial);
        EXPECT_EQ(
            Converse(Transcript(HardwareOf(serial) + Sends("T204000022") + "@cancel\n"), ReadDebugLogMode),
            TransferCancelled);
        EXPECT_EQ(Text(RadioSerial), serial);
        EXPECT_FALSE(m_context.HardwareFile.IsOpened());
        EXPECT_FALSE(m_context.DebugLogFile.IsOpened());
    }
    EXPECT_EQ(ReadFile("precious.txt"), "precious");
    EXPECT_FALSE(std::filesystem::exists("new.txt"));
    EXPECT_TRUE(std::filesystem::is_empty("Logs/deep"));
    EXPECT_TRUE(std::filesystem::is_empty("KDRV-716_.."));
}

TEST_F(TRecordDriver, RadioWithoutHardwareToTellIsAskedOn) {
    EXPECT_EQ(Transfer(Transcript(HardwareOpening() + Says("T9030000") + End), ReadInformationMode),
              TransferComplete);
    EXPECT_TRUE(m_context.InfoLines.empty());
}

TEST_F(TRecordDriver, DebugLogWithoutALogFileIsTakenAndLeft) {
    EXPECT_EQ(Transfer(Transcript(Opening("T204000030") + Sends("T204000000") + Says("T10700200C8E96F6B0") +
                                  Sends("T204000000") + Says("T9030000")),
                       ReadDebugLogMode),
              TransferComplete);
    EXPECT_TRUE(std::filesystem::is_empty("."));
}

TEST_F(TRecordDriver, DebugLogThatEndsInsideAMessageKeepsIt) {
    AskForWorkingLog();
    EXPECT_EQ(Transfer(Transcript(Opening("T204000030") + Sends("T204000000") + Says("T106002000248490") +
                                  Sends("T204000000") + Says("T9030000")),
                       ReadDebugLogMode),
              TransferComplete);
    const std::string log = ReadText("KDRV-716_UNKNOWN_Dbg.log");
    EXPECT_TRUE(log.ends_with("Msg: HI\n")) << log;
}

TEST_F(TRecordDriver, ConfigurationWithoutLinesEndsBehindTheOpening) {
    EXPECT_EQ(
        Transfer(Transcript(UpToProgramLine(Transcript::FromFile("protocol2_config_write"), 7) + Ack + End),
                 WriteConfigMode),
        TransferComplete);
}

TEST_F(TRecordDriver, RefusedConfigurationLineIsNamed) {
    m_context.ConfigLines.push_back("CR00:x:01:02:03:F9");
    m_context.ConfigLines.push_back("CR01:x:FF:::");
    const std::string part = UpToProgramLine(Transcript::FromFile("protocol2_config_write"), 9);
    const std::string line = part.substr(part.rfind('>'));
    DialogScript script;
    ExpectDriverBox(script, "Radio rejected channel 1");
    EXPECT_EQ(Transfer(Transcript(part + Nak + line + Nak + End), WriteConfigMode),
              TransferCommunicationError);
}
