// The digital driver from its start to its end, in cases that the transcripts don't cover.
#include "tests/transfer/TRecordDriverTest.h"

#include "tests/transfer/TRecordTalk.h"

#include <stdexcept>
#include <thread>
#include <type_traits>

using namespace testbench;
using namespace transfertest;

namespace {

template <class Context>
constexpr bool Transfers = std::is_invocable_v<decltype(TRecordProtocol::TransferData)&, Context&, wxGrid*,
                                               int, const wxString&, const wxString&>;
static_assert(Transfers<TRecordContext>);
static_assert(!Transfers<TransferContext>, "a context that is passed by its base can't start this protocol");

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
    EXPECT_EQ(TransferData(m_context, CurrentGrid(), ReadChannelsMode, peer.PortName(), "A title"),
              TransferTimeout);
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
    PressCancel();
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
    EXPECT_THROW(
        static_cast<void>(TransferData(m_context, CurrentGrid(), ReadChannelsMode, peer.PortName(), "Test")),
        std::runtime_error);
    peer.Finish();
    ExpectOver();
    EXPECT_EQ(m_context.Port, nullptr);
    EXPECT_EQ(m_context.Progress, nullptr);
    EXPECT_FALSE(m_context.LogFile.IsOpened());
    EXPECT_TRUE(PortIsFree(peer.PortName())) << "the port was not given back";
}
