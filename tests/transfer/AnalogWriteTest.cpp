// Writing channels to an analog radio, byte by byte.
#include "robot/Hands.h"
#include "tests/transfer/AnalogDriverTest.h"
#include "tests/transfer/CancelSpot.h"
#include "transfer/AnalogDialogue.h"

using namespace testbench;
using namespace transfertest;

namespace {

constexpr char Ack = 0x05;
constexpr const char* TimeoutBox = "Timeout Error\nVerify Radio is in PC Download mode\n"
                                   "and correct COM port is selected";

class AnalogWrite : public AnalogDriverTest {
protected:
    void SetUp() override {
        AnalogDriverTest::SetUp();
        Retarget(Krv650, 1); // 200 rows, no guards, no opening number
    }
};

using AnalogOpening = AnalogWrite;

/// Receives the opening command and acknowledges lines until the end line.
void TakeChannels(RadioPeer& peer) {
    peer.HearLine();
    for (std::string line = peer.HearLine(); !line.empty(); line = peer.HearLine()) {
        if (line.starts_with("300") || line.starts_with("END"))
            return;
        peer.Say(std::string(1, Ack));
    }
}

} // namespace

TEST_F(AnalogWrite, WithNothingSelectedSendsTheOpeningCommandAndTheEndLineOnly) {
    FillRow(1, "138.0000");
    RadioPeer peer(TakeChannels);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "dl\r" + EndLine("300"));
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(m_context.RowCapacity, 200u);
}

TEST_F(AnalogWrite, SendsTheSelectedRowsInTheirOrder) {
    for (const int row : {1, 2, 3, 200})
        FillRow(row, "138.0250");
    Select({200, 3, 1});
    RadioPeer peer(TakeChannels);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "dl\r" + SentLine("001", "138.0250") + SentLine("003", "138.0250") +
                                SentLine("200", "138.0250") + EndLine("300"));
}

TEST_F(AnalogWrite, OfAPageOfTwoHundredAndTwoRowsLeavesOutTheLastTwo) {
    Retarget(Krv610, 0);
    ASSERT_EQ(CurrentParameters().Rows, 202);
    for (const int row : {200, 201, 202})
        FillRow(row, "138.0000");
    Select({200, 201, 202});
    RadioPeer peer(TakeChannels);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "dl\r" + SentLine("200", "138.0000") + EndLine("300"));
}

TEST_F(AnalogWrite, LeavesOutARowThatHasNoNumberAndGoesOn) {
    AskForLog();
    for (const int row : {1, 2, 3})
        FillRow(row, "138.0000");
    SetCell(2, MNUM, "201");
    Select({1, 2, 3});
    RadioPeer peer(TakeChannels);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(),
              "dl\r" + SentLine("001", "138.0000") + SentLine("003", "138.0000") + EndLine("300"));
    const auto sent = [](const char* number) {
        std::string line = SentLine(number, "138.0000");
        line.back() = '\n';
        return "Send>" + line;
    };
    EXPECT_EQ(LogText(), "Initializing....\nSending Memory Data....\n" + sent("001") +
                             "  Error: 0001 on Row 2, Not Sent !\n" + sent("003") + "Transfer Complete.\n");
}

TEST_F(AnalogWrite, WithoutALogFileWritesNone) {
    RadioPeer peer(TakeChannels);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_FALSE(std::filesystem::exists(LogPath()));
}

TEST_F(AnalogWrite, TakesNoAcknowledgementThatCameBeforeTheLine) {
    FillRow(1, "138.0000");
    FillRow(2, "138.0000");
    FillRow(3, "138.0000");
    Select({1, 2, 3});
    std::string early;
    RadioPeer peer([&](RadioPeer& radio) {
        // One acknowledgement for the opening command. It must not count for the first line too.
        radio.Hear(1);
        radio.Say("\x05");
        radio.HearLine();
        for (int row = 1; row <= 3; ++row) {
            radio.HearLine();
            early += radio.Hear(1, 700);
            radio.Say("\x05\x05");
        }
        radio.HearLine();
    });
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(early, "") << "sent before the line before it was acknowledged";
    EXPECT_EQ(peer.Heard(), "dl\r" + SentLine("001", "138.0000") + SentLine("002", "138.0000") +
                                SentLine("003", "138.0000") + EndLine("300"));
}

TEST_F(AnalogWrite, TakesAnAcknowledgementFromAmongOtherBytes) {
    FillRow(1, "138.0000");
    FillRow(2, "138.0000");
    Select({1, 2});
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        for (int row = 0; row < 2; ++row) {
            radio.HearLine();
            radio.Say("\r\nxx\xFF\x05OK\r");
        }
        radio.HearLine();
    });
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(),
              "dl\r" + SentLine("001", "138.0000") + SentLine("002", "138.0000") + EndLine("300"));
}

TEST_F(AnalogWrite, WithoutAcknowledgementEndsAtThatRowAfterFiveSeconds) {
    AskForLog();
    for (const int row : {1, 2, 3})
        FillRow(row, "138.0000");
    Select({1, 2, 3});
    const std::string before = PageText();
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.HearLine();
        radio.Say("\x05");
        radio.HearLine();
    });
    DialogScript script;
    ExpectDriverBox(script, TimeoutBox);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferTimeout);
    EXPECT_GE(m_took.count(), 1050 + 50 + 5000);
    EXPECT_EQ(peer.Heard(), "dl\r" + SentLine("001", "138.0000") + SentLine("002", "138.0000"));
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(PageText(), before);
    EXPECT_TRUE(LogText().ends_with("\n<Timeout>\n")) << LogText();
}

TEST_F(AnalogWrite, OverAPortThatVanishesTimesOut) {
    FillRow(1, "138.0000");
    FillRow(2, "138.0000");
    Select({1, 2});
    const std::string before = PageText();
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.HearLine();
        radio.Say("\x05");
        radio.Hear(20);
        radio.Vanish();
    });
    DialogScript script;
    ExpectDriverBox(script, TimeoutBox);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer.PortName()), TransferTimeout);
    EXPECT_EQ(PageText(), before);
}

TEST_F(AnalogWrite, CancelledDuringTheOpeningSendsNothingFurther) {
    AskForLog();
    FillRow(1, "138.0000");
    Select({1});
    RadioPeer peer([](RadioPeer& radio) {
        radio.Hear(1);
        PressCancel();
        radio.HearLine();
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferCancelled);
    EXPECT_EQ(peer.Heard(), "dl\r");
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_EQ(LogText(), "Initializing....\nSending Memory Data....\nTransfer cancelled by user.\n");
}

TEST_F(AnalogWrite, CancelledWhileItWaitsForAnAcknowledgementSendsNothingFurther) {
    FillRow(1, "138.0000");
    FillRow(2, "138.0000");
    Select({1, 2});
    RadioPeer peer([](RadioPeer& radio) {
        radio.HearLine();
        radio.HearLine();
        PressCancel();
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferCancelled);
    EXPECT_EQ(peer.Heard(), "dl\r" + SentLine("001", "138.0000"));
    EXPECT_EQ(peer.Rest(), "");
    EXPECT_LT(m_took.count(), 4000);
}

TEST_F(AnalogWrite, CancelledByThisBenchAfterItsEndIsAsItWas) {
    RadioPeer peer(TakeChannels);
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    PressCancel();
    EXPECT_EQ(GaugeValue(), -1);
}

TEST_F(AnalogWrite, EndsWithAClickOnItsCancelButton) {
    UseRealTime();
    FillRow(1, "138.0000");
    Select({1});
    CancelSpot cancel;
    RadioPeer peer([&](RadioPeer& radio) {
        radio.HearLine();
        radio.HearLine();
        Hands().Click(cancel.Await());
    });
    const DialogScript noBox;
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferCancelled);
}

TEST_F(AnalogWrite, MovesTheMainGaugeToTheRow) {
    FillRow(150, "138.0000");
    Select({150});
    int range = -1, value = -1;
    RadioPeer peer([&](RadioPeer& radio) {
        radio.HearLine();
        radio.HearLine();
        value = GaugeValue(radio, 150);
        range = GaugeRange();
        radio.Say("\x05");
        radio.HearLine();
    });
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(range, 201);
    EXPECT_EQ(value, 150);
}

TEST_F(AnalogWrite, ToAPortInUseIsAPortError) {
    UseRealTime();
    const RadioPeer peer([](RadioPeer&) {});
    const wxAsyncSerial other(nullptr, peer.PortName(), 9600);
    ASSERT_TRUE(other.isOpen());
    DialogScript script;
    ExpectDriverBox(script, "Invalid COM Port (or Port in use)");
    EXPECT_EQ(Transfer(WriteChannelsMode, peer.PortName()), TransferPortError);
}

TEST_F(AnalogOpening, OfMoreThanTwoHundredAndTwoRowsNamesTheCount) {
    UseAskingRadio(203);
    FillRow(203, "31.0000");
    Select({203});
    RadioPeer peer([](RadioPeer& radio) {
        for (int line = 0; line < 3; ++line)
            radio.HearLine(); // SV, rt, 10
        TakeChannels(radio);
    });
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "SV\rrt\r10\rDL203\r" + SentLine("203", "031.0000") + EndLine("END"));
}

TEST_F(AnalogOpening, OfTwoHundredAndTwoRowsIsShort) {
    UseAskingRadio(202);
    FillRow(202, "31.0000");
    Select({202});
    RadioPeer peer([](RadioPeer& radio) {
        for (int line = 0; line < 3; ++line)
            radio.HearLine();
        TakeChannels(radio);
    });
    EXPECT_EQ(Transfer(WriteChannelsMode, peer), TransferComplete);
    EXPECT_EQ(peer.Heard(), "SV\rrt\r10\rdl\r" + SentLine("202", "031.0000") + EndLine("300"));
}

TEST_F(AnalogOpening, CountHasThreeCharacters) {
    EXPECT_EQ(Text(CountedCommand("UL", 99)), "UL 99\r");
    EXPECT_EQ(Text(CountedCommand("UL", 203)), "UL203\r");
    EXPECT_EQ(Text(CountedCommand("DL", 7)), "DL  7\r");
}

namespace {

/// Time that SendPaced takes, in milliseconds, without that of the line.
int64_t Pace(TransferContext& context, const wxString& text, bool slow) {
    RadioPeer peer([](RadioPeer&) {});
    const auto port = CurrentTransferSystem().Open(nullptr, peer.PortName(), 9600);
    context.Port = port.get();
    const TransferClock::Moment start = context.Clock->Now();
    SendPaced(context, text, slow);
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(context.Clock->Now() - start);
    const std::string expected = Text(text) + (slow ? "" : "\r");
    EXPECT_EQ(peer.Rest(), expected);
    context.Port = nullptr;
    return took.count();
}

} // namespace

TEST_F(AnalogWrite, PausesTwoMillisecondsBehindEachCharacterOfALineAndAddsACarriageReturn) {
    EXPECT_EQ(Pace(m_context, "wxyz", false), 5 * 2);
}

TEST_F(AnalogWrite, WaitsFiftyMillisecondsBehindTheOpeningCommand) {
    RadioPeer peer([](RadioPeer&) {});
    const auto port = CurrentTransferSystem().Open(nullptr, peer.PortName(), 9600);
    ProgressFrame progress(nullptr, wxID_ANY, "Test");
    m_context.Port = port.get();
    m_context.Progress = &progress;
    m_context.RowCapacity = 200;
    const TransferClock::Moment start = Now();
    EXPECT_EQ(WriteChannels(m_context, CurrentGrid()), TransferComplete);
    EXPECT_EQ(Now() - start, std::chrono::milliseconds(50 + 78 * 2));
    EXPECT_EQ(peer.Rest(), EndLine("300"));
    m_context.Port = nullptr;
    m_context.Progress = nullptr;
}

TEST_F(AnalogWrite, PausesLongBehindEachCharacterOfACommandAndAddsNothing) {
    EXPECT_EQ(Pace(m_context, "ul", true), 2 * 350);
}
