// The digital driver with refusals, garbage and noise, and its pauses.
#include "tests/transfer/TRecordDriverTest.h"
#include "tests/transfer/TRecordTalk.h"

#include <chrono>
#include <thread>

using namespace testbench;
using namespace transfertest;

namespace {

using std::chrono::milliseconds;

} // namespace

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
    TransferClock::Moment refused;
    milliseconds pause{0};
    RadioPeer peer([&](RadioPeer& radio) {
        radio.HearLine();
        radio.Say("T204000000FB\r");
        radio.HearLine();
        radio.Say("T204000001FA\r");
        refused = Now();
        radio.HearLine();
        pause = std::chrono::duration_cast<milliseconds>(Now() - refused);
    });
    m_context.ReplyTimeout = 700;
    EXPECT_EQ(ConverseOn(peer.PortName(), WriteChannelsMode), TransferTimeout);
    peer.Finish();
    EXPECT_GE(pause.count(), 490);
}

TEST_F(TRecordDriver, ChangesItsSpeedFiftyMillisecondsAfterTheRadioHasAgreed) {
    TransferClock::Moment::duration pause{0};
    RadioPeer peer([&](RadioPeer& radio) {
        for (const char* answer : {"T204000001FA\r", "T204000001FA\r", "T204000000FB\r"}) {
            radio.HearLine();
            radio.Say(answer);
        }
        radio.HearLine();
        const TransferClock::Moment agreed = Now();
        radio.Say("T204000000FB\r");
        while (radio.Speed() != 115200 && Now() < agreed + std::chrono::seconds(10))
            radio.Pause(1);
        pause = Now() - agreed;
        radio.HearLine();
    });
    m_context.ReplyTimeout = 700;
    EXPECT_EQ(ConverseOn(peer.PortName(), ReadChannelsMode), TransferTimeout);
    peer.Finish();
    EXPECT_GE(pause, milliseconds(50));
    EXPECT_LE(pause, milliseconds(51));
}

TEST_F(TRecordDriver, BeginsWithTheShadowsHalfASecondAfterTheLastPrimary) {
    FillP25Row(1, "A0", "10");
    FillP25Row(2, "A0", "01", "001");
    Select({1, 2});
    TransferClock::Moment::duration pause{0};
    std::string shadow;
    RadioPeer peer([&](RadioPeer& radio) {
        // Hello, version, stamp, opening, purge.
        for (const char* answer :
             {"T204000000", "T207000023010203", "T20B00002120240131235959", "T204000000", "T204000000"}) {
            radio.HearLine();
            radio.Say(Framed(answer) + "\r");
        }
        radio.HearLine();
        const TransferClock::Moment taken = Now();
        radio.Say("T204000000FB\r");
        shadow = radio.HearLine();
        pause = Now() - taken;
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

TEST_F(TRecordDriver, RadioThatAlwaysAnswersWithSomethingElseEndsTheWrite) {
    FillP25Row(1);
    Select({1});
    std::string talk = Hello(0) + Ack;
    for (int sent = 0; sent < 16; ++sent)
        talk += Sends("T204000022") + Says("T204000077");
    EXPECT_EQ(Converse(Transcript(talk), WriteChannelsMode), TransferCommunicationError);
}

TEST_F(TRecordDriver, EndInPlaceOfAGarbledMemoryIsNoCompleteRead) {
    const std::string talk = Opening("T204000024") + Sends("T204000000") + "<T14300010000FF\n" +
                             Sends("T204000001") + Says("T9030000");
    EXPECT_EQ(Converse(Transcript(talk), ReadChannelsMode), TransferChecksumError);
}

TEST_F(TRecordDriver, BytesOfAllKindsAreNoise) {
    FillP25Row(1);
    Select({1});
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        std::string noise;
        for (int code = 0; code < 256; ++code)
            if (code != '\r')
                noise += static_cast<char>(code);
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
    const auto start = Now();
    EXPECT_EQ(ConverseOn(peer.PortName(), ReadChannelsMode), TransferTimeout);
    EXPECT_LT(Now() - start, std::chrono::seconds(5));
}

TEST_F(TRecordDriver, NoiseBeginsTheWaitAnew) {
    for (const char* noise : {"noise\r", "T204000002F9\r"}) {
        SCOPED_TRACE(noise);
        RadioPeer peer([&](RadioPeer& radio) {
            radio.HearLine();
            for (int i = 0; i < 4; ++i) {
                radio.Pause(500);
                radio.Say(noise);
            }
            radio.Pause(500);
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
