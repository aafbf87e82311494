// The waits of the transfer drivers.
#include "transfer/TransferWaits.h"

#include "robot/Hands.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/transfer/RadioPeerEnd.h"
#include "tests/transfer/WindowEnd.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TransferContext.h"
#include "transfer/wxAsyncSerial.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/evtloop.h>
#include <wx/memconf.h>
#include <wx/timer.h>

#include <atomic>
#include <memory>

using namespace testbench;

namespace {

class TransferWaitsTest : public ::testing::Test {
protected:
    TransferWaitsTest() : m_formerConfig(wxConfigBase::Set(new wxMemoryConfig)) {
        m_frame = new ProgressFrame(nullptr, wxID_ANY, "Waiting");
        m_context.Progress = m_frame;
        ShowAndFocus(*m_frame);
        wxAsyncSerial::GetData();
    }

    ~TransferWaitsTest() override {
        DestroyAndWait(m_frame);
        delete wxConfigBase::Set(m_formerConfig);
    }

    static void Receive(const wxString& text) {
        const wxMutexLocker lock(SerialRxMutex);
        SerialRxBuffer += text;
    }

    // Receives text after a delay, on another thread.
    std::thread ReceiveLater(const char* text, int ms) {
        return std::thread([text, ms] {
            std::this_thread::sleep_for(std::chrono::milliseconds(ms));
            Receive(text);
        });
    }

    wxButton& CancelButton() const {
        for (wxWindow* child : m_frame->GetChildren()) {
            if (auto* button = dynamic_cast<wxButton*>(child))
                return *button;
        }
        throw std::runtime_error("no Cancel button");
    }

    // Clicks and leaves the click's events in the queue.
    void LeaveClickOnCancel() const {
        Hands().Click(MiddleOf(CancelButton()));
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!wxEventLoopBase::GetActive()->Pending() && std::chrono::steady_clock::now() < deadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        // The release follows the press at once, but a busy machine needs a moment.
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }

    int WaitForReturn(int timeoutMs) { return WaitForLine(m_context, timeoutMs, '\r', true); }

    TransferContext m_context;
    ProgressFrame* m_frame;
    wxConfigBase* m_formerConfig;
};

using WaitForLineTest = TransferWaitsTest;
using DelayTest = TransferWaitsTest;

TEST_F(WaitForLineTest, EndsWith0WhenALineArrives) {
    std::thread radio = ReceiveLater("OK\r", 100);
    EXPECT_EQ(WaitForReturn(5000), 0);
    radio.join();
    EXPECT_EQ(m_context.RxBuffer, "OK\r");
    EXPECT_EQ(m_context.FoundAt, 2);
    EXPECT_GE(m_context.Elapsed, 90);
}

TEST_F(WaitForLineTest, TakesALineThatComesInPiecesOverARealPort) {
    const auto device = transfertest::MakeRealEnd();
    wxAsyncSerial port(nullptr, device->PortName(), 9600);
    ASSERT_TRUE(port.isOpen());
    std::thread radio([&] {
        for (const char* piece : {"T2", "0400", "0000", "D2", "\rT9"}) {
            device->Write(piece);
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    });
    EXPECT_EQ(WaitForReturn(5000), 0);
    radio.join();
    EXPECT_EQ(m_context.FoundAt, 12);
    EXPECT_EQ(m_context.RxBuffer.Left(13), "T204000000D2\r");
}

TEST_F(WaitForLineTest, EndsWith4WhenTheTimeIsUp) {
    EXPECT_EQ(WaitForReturn(120), 4);
    EXPECT_GE(m_context.Elapsed, 120);
    EXPECT_EQ(m_context.FoundAt, -1);
    EXPECT_EQ((m_context.WaitNow - m_context.WaitStart).GetMilliseconds().GetValue(), m_context.Elapsed);
}

TEST_F(WaitForLineTest, WithoutATerminatorKeepsWhatCameForTheNextWait) {
    Receive("half");
    EXPECT_EQ(WaitForReturn(30), 4);
    EXPECT_EQ(m_context.RxBuffer, "half");
    Receive(" line\r");
    EXPECT_EQ(WaitForReturn(1000), 0);
    EXPECT_EQ(m_context.RxBuffer, "half line\r");
    EXPECT_EQ(m_context.FoundAt, 9);
}

TEST_F(WaitForLineTest, FindsATerminatorThatIsAlreadyThereOnItsFirstPass) {
    m_context.RxBuffer = "first\rsecond\r";
    EXPECT_EQ(WaitForReturn(5000), 0);
    EXPECT_EQ(m_context.FoundAt, 5);
    EXPECT_EQ(m_context.RxBuffer, "first\rsecond\r");
}

TEST_F(WaitForLineTest, LooksForTheTerminatorThatItIsGiven) {
    m_context.RxBuffer = wxString("a\rb") + wxUniChar(0x05) + "c";
    EXPECT_EQ(WaitForLine(m_context, 5000, 0x05, true), 0);
    EXPECT_EQ(m_context.FoundAt, 3);
    EXPECT_EQ(WaitForLine(m_context, 30, 0xE4, true), 4);
    m_context.RxBuffer += wxUniChar(0xE4);
    EXPECT_EQ(WaitForLine(m_context, 5000, 0xE4, true), 0);
    EXPECT_EQ(m_context.FoundAt, 5);
}

TEST_F(WaitForLineTest, TakesTextAsItIsOrAsItsContextWantsIt) {
    const wxString marked = wxString("OK") + wxUniChar(0x8D);
    Receive(marked);
    EXPECT_EQ(WaitForReturn(30), 4) << "to the digital radios it is no carriage return";
    EXPECT_EQ(m_context.RxBuffer, marked);
    m_context.RxBuffer.clear();
    m_context.Arriving = [](const wxString& text) { return text.BeforeFirst(wxUniChar(0x8D)) + "\r"; };
    Receive(marked);
    EXPECT_EQ(WaitForReturn(5000), 0);
    EXPECT_EQ(m_context.RxBuffer, "OK\r");
}

TEST_F(WaitForLineTest, CancelWinsOverTimeOutAndLine) {
    m_context.RxBuffer = "line\r";
    m_frame->Cancelled = true;
    EXPECT_EQ(WaitForReturn(0), 10);
    EXPECT_EQ(WaitForReturn(5000), 10);
    EXPECT_EQ(m_context.FoundAt, 4) << "received data is examined in any case";
}

TEST_F(WaitForLineTest, TimeOutWinsOverALineOfTheSamePass) {
    m_context.RxBuffer = "line\r";
    EXPECT_EQ(WaitForReturn(0), 4);
    EXPECT_EQ(m_context.FoundAt, 4);
}

TEST_F(WaitForLineTest, AClickOnCancelEndsItWith10) {
    int result = -1;
    const wxPoint cancel = MiddleOf(CancelButton());
    RunWithRobot([&](Robot& robot) { robot.Click(cancel); }, [&] { result = WaitForReturn(20000); });
    EXPECT_EQ(result, 10);
    EXPECT_LT(m_context.Elapsed, 15000);
}

TEST_F(WaitForLineTest, ACancelIsSeenInThePassThatBringsIt) {
    // The line has arrived too: if the pass had missed the click, the result would be 0.
    Receive("line\r");
    LeaveClickOnCancel();
    EXPECT_EQ(WaitForReturn(5000), 10);
    EXPECT_EQ(m_context.RxBuffer, "line\r");
}

TEST_F(WaitForLineTest, KeepsOtherKindsOfEventsForLater) {
    bool timerRan = false;
    wxTimer timer;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent&) { timerRan = true; });
    wxTimerEvent event(timer);
    timer.QueueEvent(event.Clone());
    EXPECT_EQ(WaitForReturn(50), 4);
    EXPECT_FALSE(timerRan);
    EXPECT_TRUE(PumpUntil([&] { return timerRan; }));
}

TEST_F(WaitForLineTest, WithoutAnActiveEventLoopDoesNotYield) {
    auto* loop = wxEventLoopBase::GetActive();
    ASSERT_NE(loop, nullptr);
    LeaveClickOnCancel();
    wxEventLoopBase::SetActive(nullptr);
    const int timedOut = WaitForReturn(50);
    Receive("line\r");
    const int received = WaitForReturn(1000);
    wxEventLoopBase::SetActive(loop);
    EXPECT_EQ(timedOut, 4);
    EXPECT_EQ(received, 0);
    EXPECT_FALSE(m_frame->Cancelled);
    EXPECT_EQ(WaitForReturn(1000), 10) << "with a loop the wait does yield";
}

TEST_F(WaitForLineTest, PulsesEvery50MillisecondsWhateverItsFlagSays) {
    for (const bool pulse : {true, false}) {
        // A busy machine may stretch any pass, so the test checks only what holds at the end of each.
        for (const int timeout : {0, 70, 330}) {
            m_context.LastPulse = -999;
            EXPECT_EQ(WaitForLine(m_context, timeout, '\r', pulse), 4);
            EXPECT_TRUE(m_context.LastPulse == 0 || m_context.LastPulse >= 50) << m_context.LastPulse;
            EXPECT_LE(m_context.LastPulse, m_context.Elapsed) << "flag " << pulse;
            EXPECT_LT(m_context.Elapsed - m_context.LastPulse, 50) << "flag " << pulse;
        }
    }
}

TEST_F(DelayTest, Of0ReturnsAndLeavesTheClockAlone) {
    m_context.Elapsed = 77;
    Delay(m_context, 0, true);
    EXPECT_EQ(m_context.Elapsed, 77);
    EXPECT_FALSE(m_context.WaitStart.IsValid());
}

TEST_F(DelayTest, LastsItsTime) {
    for (const bool cancelTest : {true, false}) {
        const auto start = std::chrono::steady_clock::now();
        Delay(m_context, 80, cancelTest);
        const auto taken = std::chrono::steady_clock::now() - start;
        EXPECT_GE(taken, std::chrono::milliseconds(78)) << "cancel test " << cancelTest;
        EXPECT_TRUE(m_context.WaitStart.IsValid());
    }
}

TEST_F(DelayTest, IsCutShortByAnEarlierCancelOnlyIfAsked) {
    m_frame->Cancelled = true;
    Delay(m_context, 1'000'000'000, true); // would take days
    const auto start = std::chrono::steady_clock::now();
    Delay(m_context, 80, false);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(78));
}

TEST_F(DelayTest, PumpsNoEventsSoThatNoCancelCanLandInIt) {
    LeaveClickOnCancel();
    const auto start = std::chrono::steady_clock::now();
    Delay(m_context, 100, true);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(98));
    EXPECT_FALSE(m_frame->Cancelled);
    EXPECT_TRUE(PumpUntil([&] { return m_frame->Cancelled; }));
}

} // namespace
