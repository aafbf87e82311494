// The digital driver in cases that the transcripts don't cover.
#include "tests/transfer/TRecordDriverTest.h"

#include <chrono>
#include <stdexcept>
#include <thread>
#include <type_traits>

using namespace testbench;
using namespace transfertest;

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

class TRecordDriver : public TRecordDriverTest {};

template <class Context>
constexpr bool Transfers = std::is_invocable_v<decltype(TRecordProtocol::TransferData)&, Context&, wxGrid*,
                                               int, const wxString&, const wxString&>;
static_assert(Transfers<TRecordContext>);
static_assert(!Transfers<TransferContext>, "a context that is passed by its base can't start this protocol");

std::string Sends(const std::string& line) {
    return ">" + Framed(line) + "\n";
}
std::string Says(const std::string& line) {
    return "<" + Framed(line) + "\n";
}

const std::string Ack = Says("T204000000");
const std::string Nak = Says("T204000001");
const std::string End = Sends("T9030000");

std::string Hello(int protocol) {
    return Sends("T00700002" + std::to_string(protocol) + "030000");
}
/// A protocol 0 dialogue up to the place where data begin.
std::string Opening(const std::string& openingMessage) {
    return Hello(0) + Ack + Sends("T204000022") + Says("T207000023010203") + ">T20B000021" + AnyStamp + "\n" +
           Ack + Sends(openingMessage) + Ack;
}
/// A read of the hardware up to its first record.
std::string HardwareOpening() {
    return Hello(0) + Nak + Hello(1) + Nak + Hello(2) + Ack + Sends("T2060000320480") + Ack +
           Sends("T204000033") + Says("T20500003370") + Sends("T204000031");
}
std::string DataRecord(const std::string& text) {
    std::string line = Text(wxString::Format("T1%02X0000", static_cast<int>(text.size()) + 3));
    for (const char c : text)
        line += Text(wxString::Format("%02X", static_cast<int>(static_cast<unsigned char>(c))));
    return Says(line);
}
/// A complete read of the hardware from a radio of that serial number.
std::string HardwareOf(const std::string& serial) {
    return HardwareOpening() + DataRecord(serial) + Sends("T204000000") + DataRecord("Board 3") +
           Sends("T204000000") + Says("T9030000");
}

/// A transcript up to the program's nth line, counted from 0, or empty if it has no such line.
std::string UpToProgramLine(const Transcript& whole, int n) {
    std::string part;
    for (const std::string& line : whole.Lines()) {
        part += line + "\n";
        if (line.starts_with(">") && n-- == 0)
            return part;
    }
    return {};
}

/// The states in which protocol 2 writes two rows, in the order of the program's lines.
constexpr int WriteStates[] = {-10, -10, -10, -9, -8, -5, -4, -3, 1, 3};

} // namespace

TEST_F(TRecordDriver, WithNothingSelectedSaysNothingToTheRadio) {
    FillP25Row(1);
    CurrentGrid()->ClearSelection();
    DialogScript script;
    ExpectDriverBox(script, "No data selected for transfer to Radio");
    EXPECT_EQ(Transfer(Transcript(""), WriteChannelsMode), TransferNoDataSelected);
}

TEST_F(TRecordDriver, WithoutThePortTellsSo) {
    FillP25Row(1);
    Select({1});
    AskForWorkingLog();
    DialogScript script;
    ExpectDriverBox(script, "Invalid COM Port (or Port in use)");
    EXPECT_EQ(TransferData(m_context, CurrentGrid(), WriteChannelsMode, NoSuchPort, "Test"),
              TransferPortError);
    EXPECT_EQ(ReadFile("Zelk.log"), "");
    EXPECT_EQ(CellText(1, TFLG), "A0") << "the page is untouched";
    ExpectOver();
}

TEST_F(TRecordDriver, WithoutALogWritesNone) {
    EXPECT_EQ(Transfer(Transcript(Opening("T204000024") + Sends("T204000000") + Says("T9030000")),
                       ReadChannelsMode),
              TransferComplete);
    EXPECT_TRUE(std::filesystem::is_empty("."));
}

TEST_F(TRecordDriver, ShowsItsTitle) {
    RadioPeer peer([](RadioPeer&) {});
    m_context.ReplyTimeout = 50;
    std::string title;
    DialogScript script;
    ExpectDriverBox(script, TimeoutText).Set([&](wxDialog*) { title = Text(OpenProgress()->GetTitle()); });
    TransferData(m_context, CurrentGrid(), ReadChannelsMode, peer.PortName(), "A title");
    EXPECT_EQ(title, "A title");
}

TEST_F(TRecordDriver, CancelledAtAnyLineOfAWriteEndsIt) {
    FillP25Row(1);
    FillP25Row(3);
    Select({1, 3});
    const DialogScript noBox;
    for (int n = 0; n < static_cast<int>(std::size(WriteStates)); ++n) {
        SCOPED_TRACE("line " + std::to_string(n));
        const std::string part = UpToProgramLine(Transcript::FromFile("protocol2_write"), n);
        ASSERT_NE(part, "");
        EXPECT_EQ(Transfer(Transcript(part + "@cancel\n" + End), WriteChannelsMode), TransferCancelled);
    }
}

TEST_F(TRecordDriver, CancelledWhenItIsOverStaysAsItEnded) {
    m_context.ResultPause = 0;
    EXPECT_EQ(Transfer(Transcript(Opening("T204000024") + Sends("T204000000") + Says("T9030000")),
                       ReadChannelsMode),
              TransferComplete);
    std::thread([this] { Cancel(); }).join();
    wxYield();
    EXPECT_EQ(Converse(Transcript(Opening("T204000024") + Sends("T204000000") + Says("T9030000")),
                       ReadChannelsMode),
              TransferComplete);
}

TEST_F(TRecordDriver, CancelledAtAnyLineOfAnyOtherModeEndsIt) {
    struct {
        const char* transcript;
        int mode, lines;
    } const cases[] = {
        {"protocol2_read", ReadChannelsMode, 15},        {"protocol2_config_read", ReadConfigMode, 12},
        {"protocol2_config_write", WriteConfigMode, 10}, {"protocol2_hardware", ReadInformationMode, 9},
        {"protocol2_debug_log", ReadDebugLogMode, 14},
    };
    const DialogScript noBox;
    for (const auto& c : cases) {
        const Transcript whole = Transcript::FromFile(c.transcript);
        for (int n = 0; n < c.lines; ++n) {
            SCOPED_TRACE(std::string(c.transcript) + ", line " + std::to_string(n));
            m_context.ConfigLines.clear();
            m_context.ConfigLines.push_back("CR00:x:01:02:03:F9");
            m_context.ConfigLines.push_back("CR01:x:FF:::");
            EXPECT_EQ(Transfer(Transcript(UpToProgramLine(whole, n) + "@cancel\n" + End), c.mode),
                      TransferCancelled);
        }
    }
}

TEST_F(TRecordDriver, WhoseRadioIsUnpluggedTimesOut) {
    FillP25Row(1);
    Select({1});
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say("T204000000FB\r");
        radio.HearLine();
        radio.Vanish();
    });
    m_context.ReplyTimeout = 500;
    DialogScript script;
    ExpectDriverBox(script, TimeoutText);
    EXPECT_EQ(TransferData(m_context, CurrentGrid(), WriteChannelsMode, peer.PortName(), "Test"),
              TransferTimeout);
    EXPECT_EQ(m_context.Port, nullptr);
    ExpectOver();
}

TEST_F(TRecordDriver, LeftAloneAtAnyLineTimesOutAndSaysNoMore) {
    FillP25Row(1);
    FillP25Row(3);
    Select({1, 3});
    m_context.ReplyTimeout = 250;
    for (int n = 0; n < static_cast<int>(std::size(WriteStates)); ++n) {
        SCOPED_TRACE("line " + std::to_string(n));
        DialogScript script;
        ExpectDriverBox(script, TimeoutText);
        const std::string part = UpToProgramLine(Transcript::FromFile("protocol2_write"), n);
        EXPECT_EQ(Transfer(Transcript(part), WriteChannelsMode), TransferTimeout);
    }
}

TEST_F(TRecordDriver, RefusedTwiceAtAnyLineBehindTheHelloEndsIt) {
    FillP25Row(1);
    FillP25Row(3);
    Select({1, 3});
    for (int n = 3; n < static_cast<int>(std::size(WriteStates)); ++n) {
        SCOPED_TRACE("line " + std::to_string(n));
        const std::string part = UpToProgramLine(Transcript::FromFile("protocol2_write"), n);
        const std::string line = part.substr(part.rfind('>'));
        DialogScript script;
        ExpectDriverBox(script, ("Radio rejected channel " + std::to_string(WriteStates[n])).c_str());
        EXPECT_EQ(Transfer(Transcript(part + Nak + line + Nak + End), WriteChannelsMode),
                  TransferCommunicationError);
    }
}

TEST_F(TRecordDriver, AnsweredWithGarbageTwiceAtAnyLineEndsItWithoutAnEndRecord) {
    FillP25Row(1);
    FillP25Row(3);
    Select({1, 3});
    const std::string garbage = "<T2040000001B\n";
    for (int n = 0; n < static_cast<int>(std::size(WriteStates)); ++n) {
        SCOPED_TRACE("line " + std::to_string(n));
        const std::string part = UpToProgramLine(Transcript::FromFile("protocol2_write"), n);
        const std::string line = part.substr(part.rfind('>'));
        DialogScript script;
        ExpectDriverBox(script, ("Checksum Error on channel " + std::to_string(WriteStates[n])).c_str());
        EXPECT_EQ(Transfer(Transcript(part + garbage + line + garbage), WriteChannelsMode),
                  TransferChecksumError);
    }
}

TEST_F(TRecordDriver, RefusalAndGarbageCountTogether) {
    FillP25Row(1);
    Select({1});
    const std::string start = Hello(0) + Ack + Sends("T204000022");
    EXPECT_EQ(Converse(Transcript(start + Nak + Sends("T204000022") + "<T2040000001B\n"), 0),
              TransferChecksumError);
    EXPECT_EQ(Converse(Transcript(start + "<T2040000001B\n" + Sends("T204000022") + Nak), 0),
              TransferCommunicationError);
}

TEST_F(TRecordDriver, RefusalIsFollowedByAPause) {
    FillP25Row(1);
    Select({1});
    Clock::time_point refused;
    milliseconds pause{0};
    RadioPeer peer([&](RadioPeer& radio) {
        radio.HearLine();
        radio.Say("T204000000FB\r");
        radio.HearLine();
        radio.Say("T204000001FA\r");
        refused = Clock::now();
        radio.HearLine();
        pause = std::chrono::duration_cast<milliseconds>(Clock::now() - refused);
    });
    m_context.ReplyTimeout = 700;
    EXPECT_EQ(ConverseOn(peer.PortName(), WriteChannelsMode), TransferTimeout);
    peer.Finish();
    EXPECT_GE(pause.count(), 490);
}

TEST_F(TRecordDriver, ChangesItsSpeedFiftyMillisecondsAfterTheRadioHasAgreed) {
    Clock::duration pause{0};
    RadioPeer peer([&](RadioPeer& radio) {
        for (const char* answer : {"T204000001FA\r", "T204000001FA\r", "T204000000FB\r"}) {
            radio.HearLine();
            radio.Say(answer);
        }
        radio.HearLine();
        const Clock::time_point agreed = Clock::now();
        radio.Say("T204000000FB\r");
        while (radio.Port().Speed() != B115200 && Clock::now() < agreed + std::chrono::seconds(10))
            std::this_thread::sleep_for(milliseconds(1));
        pause = Clock::now() - agreed;
        radio.HearLine();
    });
    m_context.ReplyTimeout = 700;
    EXPECT_EQ(ConverseOn(peer.PortName(), ReadChannelsMode), TransferTimeout);
    peer.Finish();
    EXPECT_GE(pause, milliseconds(50));
    EXPECT_LT(pause, std::chrono::seconds(10)) << "the speed was never changed";
}

TEST_F(TRecordDriver, BeginsWithTheShadowsHalfASecondAfterTheLastPrimary) {
    FillP25Row(1, "A0", "10");
    FillP25Row(2, "A0", "01", "001");
    Select({1, 2});
    Clock::duration pause{0};
    std::string shadow;
    RadioPeer peer([&](RadioPeer& radio) {
        // Hello, version, stamp, opening, purge.
        for (const char* answer :
             {"T204000000", "T207000023010203", "T20B00002120240131235959", "T204000000", "T204000000"}) {
            radio.HearLine();
            radio.Say(Framed(answer) + "\r");
        }
        radio.HearLine();
        const Clock::time_point taken = Clock::now();
        radio.Say("T204000000FB\r");
        shadow = radio.HearLine();
        pause = Clock::now() - taken;
    });
    m_context.ReplyTimeout = 1500;
    EXPECT_EQ(ConverseOn(peer.PortName(), WriteChannelsMode), TransferTimeout);
    peer.Finish();
    EXPECT_EQ(shadow.substr(0, 8), "T1430002");
    EXPECT_GE(pause, milliseconds(500));
}

TEST_F(TRecordDriver, HostileShortLinesAreGarbageNotACrash) {
    FillP25Row(1);
    Select({1});
    for (const char* line : {"T", "TF", "TFF", "T2F", "TFB0", "T1\xFF\xFE", "T20400000", "T204000000",
                             "T204000000fb0", "T9030000", "T-1-1-1", "Tzzzz"}) {
        SCOPED_TRACE(line);
        const std::string said = std::string("<") + line + "\n";
        const int status = Converse(Transcript(Hello(0) + said + Hello(0) + said), WriteChannelsMode);
        EXPECT_EQ(status, TransferChecksumError);
    }
}

TEST_F(TRecordDriver, FramesOfNothingAreIgnored) {
    for (const char* line : {"T2FF", "TFFF", "T FF", "T1FF"}) {
        SCOPED_TRACE(line);
        FillP25Row(1);
        Select({1});
        EXPECT_EQ(
            Converse(Transcript(Hello(0) + "<" + line + "\n" + Hello(0) + "@cancel\n"), WriteChannelsMode),
            TransferCancelled);
    }
}

TEST_F(TRecordDriver, HostileShortMessagesAreReadAsFarAsTheyGo) {
    FillP25Row(1);
    Select({1});
    const std::string start = Hello(0) + Nak + Hello(1) + Ack + Sends("T204000033");
    EXPECT_EQ(
        Converse(Transcript(start + Says("T205000033") + Sends("T204000022") + Says("T207000023") +
                            Sends("T204000020") + Says("T20B000021") + Sends("T204000025") + "@cancel\n"),
                 WriteChannelsMode),
        TransferCancelled);
    EXPECT_EQ(OpModes[0], 0u);
    EXPECT_EQ(Text(RadioVersion), "");
    EXPECT_EQ(m_context.XferFlags & 0x08, 0x08u);
}

TEST_F(TRecordDriver, HostileDataRecordsDoNotStopARead) {
    const std::string before = PageText();
    std::string talk = Opening("T204000024");
    std::string answer = Sends("T204000000");
    for (const char* record : {"T143FFFF", "T143F", "T1430FFF00"}) {
        talk += answer + Says(record);
        answer = Sends("T204000001");
    }
    EXPECT_EQ(Converse(Transcript(talk + answer + Says("T9030000")), ReadChannelsMode), TransferComplete);
    EXPECT_EQ(PageText(), before);
}

TEST_F(TRecordDriver, BytesOfAllKindsAreNoise) {
    FillP25Row(1);
    Select({1});
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        std::string noise;
        for (int byte = 0; byte < 256; ++byte)
            if (byte != '\r')
                noise += static_cast<char>(byte);
        radio.Say(noise + "\r" + noise + "\r\n\n \tT204000000FB\r");
        radio.HearLine();
    });
    m_context.ReplyTimeout = 500;
    EXPECT_EQ(ConverseOn(peer.PortName(), WriteChannelsMode), TransferTimeout);
    peer.Finish();
    EXPECT_EQ(peer.Heard(), Framed("T007000020030000") + "\r" + Framed("T204000022") + "\r");
}

TEST_F(TRecordDriver, LineWithoutAnEndTimesOutHoweverLongItIs) {
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say("T1" + std::string(3000000, '0'));
    });
    m_context.ReplyTimeout = 1500;
    const auto start = Clock::now();
    EXPECT_EQ(ConverseOn(peer.PortName(), ReadChannelsMode), TransferTimeout);
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
}

TEST_F(TRecordDriver, NoiseBeginsTheWaitAnew) {
    for (const char* noise : {"noise\r", "T204000002F9\r"}) {
        SCOPED_TRACE(noise);
        RadioPeer peer([&](RadioPeer& radio) {
            radio.HearLine();
            for (int i = 0; i < 4; ++i) {
                std::this_thread::sleep_for(milliseconds(500));
                radio.Say(noise);
            }
            std::this_thread::sleep_for(milliseconds(500));
            radio.Say("T204000000FB\r");
            radio.HearLine();
        });
        m_context.ReplyTimeout = 1000;
        EXPECT_EQ(ConverseOn(peer.PortName(), ReadChannelsMode), TransferTimeout);
        peer.Finish();
        EXPECT_EQ(peer.Heard(), Framed("T007000020030000") + "\r" + Framed("T204000022") + "\r");
    }
}

TEST_F(TRecordDriver, LineFeedsBehindTheLinesAreDropped) {
    EXPECT_EQ(Converse(Transcript("@crlf\n" + Opening("T204000024") + Sends("T204000000") + Says("T9030000")),
                       ReadChannelsMode),
              TransferComplete);
}

TEST_F(TRecordDriver, LateLineFeedCostsNoRecord) {
    // Each line feed is sent after the program has answered its line, before the next line.
    RadioPeer peer([](RadioPeer& radio) {
        for (const char* line : {"T204000000", "T207000023010203", "T204000000", "T204000000", "T9030000"}) {
            radio.HearLine();
            radio.Say("\n" + Framed(line) + "\r");
        }
    });
    EXPECT_EQ(ConverseOn(peer.PortName(), ReadChannelsMode), TransferComplete);
    EXPECT_EQ(m_context.RetryCount, 0u);
}

TEST_F(TRecordDriver, IgnoredLineSendsTheStandingLineAgainAsItStands) {
    const std::string stranger = Says("T204000077");
    const std::string version = Sends("T204000022");
    EXPECT_EQ(
        Converse(Transcript(Hello(0) + Ack + version + stranger + version + stranger + version + "@cancel\n"),
                 ReadChannelsMode),
        TransferCancelled);
}

TEST_F(TRecordDriver, IgnoredLineBehindNoiseSendsNothing) {
    EXPECT_EQ(Converse(Transcript(Hello(0) + "<noise\n" + Says("T204000077") + Ack + Sends("T204000022") +
                                  "@cancel\n"),
                       ReadChannelsMode),
              TransferCancelled);
}

TEST_F(TRecordDriver, OffersFurtherProtocolsAsLongAsTheyAreRefused) {
    EXPECT_EQ(Converse(Transcript(Hello(0) + Nak + Hello(1) + Nak + Hello(2) + Nak + Hello(3) + Nak +
                                  Hello(4) + Ack + Sends("T2060000320480") + "@cancel\n"),
                       ReadChannelsMode),
              TransferCancelled);
    EXPECT_EQ(m_context.Protocol, 4u);
}

TEST_F(TRecordDriver, BeginsEachTransferWithTheFirstProtocol) {
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(Converse(Transcript(Hello(0) + Nak + Hello(1) + "@cancel\n"), ReadChannelsMode),
                  TransferCancelled);
}

TEST_F(TRecordDriver, MeasuresModesByTheRadioBefore) {
    FillP25Row(1);
    SetCell(1, MODE, "w");
    Select({1});
    const std::string start = Hello(0) + Nak + Hello(1) + Ack + Sends("T204000033");
    const std::string rest = Sends("T204000022") + "@cancel\n";
    {
        DialogScript script;
        script.ExpectMessage("Radio Operating Modes", AnyText(), wxID_YES);
        EXPECT_EQ(Converse(Transcript(start + Says("T20500003370") + rest), WriteChannelsMode),
                  TransferCancelled);
    }
    const DialogScript noBox;
    EXPECT_EQ(Converse(Transcript(start + Says("T20500003330") + rest), WriteChannelsMode),
              TransferCancelled);
    EXPECT_EQ(OpModes[0], 0x30u);
}

TEST_F(TRecordDriver, KeepsWhatIsReadBeforeAFailure) {
    EXPECT_EQ(Converse(Transcript(UpToProgramLine(Transcript::FromFile("protocol0_read"), 6) + "@cancel\n"),
                       ReadChannelsMode),
              TransferCancelled);
    EXPECT_EQ(FilledRows().size(), 2u);
}

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
    EXPECT_NE(ReadFile("Logs/K7A42.txt").find("Board 3\n"), std::string::npos);
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
    const std::string log = ReadFile("KDRV-716_UNKNOWN_Dbg.log");
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

TEST_F(TRecordDriver, ServesTheSendCommand) {
    for (const int row : {1, 2, 3})
        FillP25Row(row);
    Select({1, 3});
    TranscriptPeer peer(Transcript::FromFile("protocol1_write"));
    PortName = peer.PortName();
    DialogScript script;
    ExpectBox(script, "Write to Radio Status", "Complete");
    Upload();
    EXPECT_EQ(peer.Finish(), "");
}

TEST_F(TRecordDriver, ServesTheReadCommand) {
    FillP25Row(7);
    TranscriptPeer peer(Transcript::FromFile("protocol2_read"));
    PortName = peer.PortName();
    DialogScript script;
    ExpectQuestion(script);
    ExpectBox(script, "Read from Radio Status", "Complete");
    Download();
    EXPECT_EQ(peer.Finish(), "");
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_EQ(CellText(4, RFRQ), "154.12500");
}

TEST_F(TRecordDriver, ThatThrowsInMidTransferLeavesUsableWindowsAndAFreePort) {
    AskForWorkingLog();
    m_context.Arriving = [](const wxString& text) -> wxString {
        if (!text.empty())
            throw std::runtime_error("in a wait");
        return text;
    };
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.Say("T204000000FB\r");
    });
    EXPECT_THROW(TransferData(m_context, CurrentGrid(), ReadChannelsMode, peer.PortName(), "Test"),
                 std::runtime_error);
    peer.Finish();
    ExpectOver();
    EXPECT_EQ(m_context.Port, nullptr);
    EXPECT_EQ(m_context.Progress, nullptr);
    EXPECT_FALSE(m_context.LogFile.IsOpened());
    EXPECT_TRUE(PortIsFree(peer.PortName())) << "the port was not given back";
}
