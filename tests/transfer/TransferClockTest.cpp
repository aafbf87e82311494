// The system's clock of a transfer: its waits end on time and leave the processor to others.
#include "transfer/TransferClock.h"

#include "tests/support/ProcessorTime.h"
#include "tests/transfer/RadioPeerEnd.h"
#include "transfer/PreciseSleep.h"
#include "transfer/wxAsyncSerial.h"

#include <gtest/gtest.h>
#include <wx/evtloop.h>

#include <chrono>
#include <memory>
#include <thread>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Steady = std::chrono::steady_clock;

class SystemClockWait : public ::testing::Test {
protected:
    void SetUp() override { wxAsyncSerial::GetData(); }

    std::unique_ptr<transfertest::RadioPeerEnd> m_device = transfertest::MakeRealEnd();
    wxAsyncSerial m_port{nullptr, m_device->PortName(), 9600};
};

TEST_F(SystemClockWait, ForDataEndsWhenThePortsThreadDeliversSome) {
    ASSERT_TRUE(m_port.isOpen());
    std::thread radio([this] {
        std::this_thread::sleep_for(milliseconds(50));
        m_device->Write("A");
    });
    // Without the wake-up this takes a minute.
    const auto end = Steady::now() + seconds(60);
    wxAsyncSerial::WaitForData(end, 'A');
    EXPECT_LT(Steady::now(), end);
    radio.join();
    EXPECT_EQ(wxAsyncSerial::GetData(), "A");
}

TEST_F(SystemClockWait, ForDataEndsAtOnceWhenSomeIsThere) {
    {
        const wxMutexLocker lock(SerialRxMutex);
        SerialRxBuffer += "A";
    }
    const auto end = Steady::now() + seconds(60);
    wxAsyncSerial::WaitForData(end, 'A');
    EXPECT_LT(Steady::now(), end);
    wxAsyncSerial::GetData();
}

TEST_F(SystemClockWait, ForDataGoesOnUntilTheEndOfTheLine) {
    std::thread radio([this] {
        m_device->Write("T204");
        std::this_thread::sleep_for(milliseconds(50));
        m_device->Write("000000D2\r");
    });
    EXPECT_TRUE(wxAsyncSerial::WaitForData(Steady::now() + seconds(60), '\r'));
    EXPECT_EQ(wxAsyncSerial::GetData(), "T204000000D2\r");
    radio.join();
}

TEST_F(SystemClockWait, ForDataEndsAtALineEndWithItsHighestBitSet) {
    m_device->Write("\x8D");
    EXPECT_TRUE(wxAsyncSerial::WaitForData(Steady::now() + seconds(60), '\r'));
}

TEST_F(SystemClockWait, ForDataIsNotEndedByOtherText) {
    m_device->Write("T204");
    const auto end = Steady::now() + milliseconds(30);
    EXPECT_FALSE(wxAsyncSerial::WaitForData(end, '\r'));
    EXPECT_GE(Steady::now(), end);
}

TEST_F(SystemClockWait, ForDataEndsWhenTheTimeIsUp) {
    const auto end = Steady::now() + milliseconds(30);
    wxAsyncSerial::WaitForData(end, 'A');
    EXPECT_GE(Steady::now(), end);
}

TEST_F(SystemClockWait, WithoutSleepEndsWhenThePortsThreadDeliversTheEndOfALine) {
    std::thread radio([this] {
        m_device->Write("T204");
        std::this_thread::sleep_for(milliseconds(50));
        m_device->Write("000000D2\r");
    });
    EXPECT_TRUE(wxAsyncSerial::WatchForData(Steady::now() + seconds(60), '\r'));
    EXPECT_EQ(wxAsyncSerial::GetData(), "T204000000D2\r");
    radio.join();
}

TEST_F(SystemClockWait, WithoutSleepEndsAtOnceWhenALineIsThere) {
    m_device->Write("\r");
    ASSERT_TRUE(wxAsyncSerial::WaitForData(Steady::now() + seconds(60), '\r'));
    EXPECT_TRUE(wxAsyncSerial::WatchForData(Steady::now(), '\r'));
}

TEST_F(SystemClockWait, WithoutSleepEndsWhenTheTimeIsUp) {
    m_device->Write("T204");
    const auto end = Steady::now() + milliseconds(30);
    EXPECT_FALSE(wxAsyncSerial::WatchForData(end, '\r'));
    EXPECT_GE(Steady::now(), end);
}

TEST_F(SystemClockWait, ForTextEndsEarlyForTheEventsOfTheWindow) {
    const auto end = Steady::now() + seconds(60);
    SystemClock().WaitForText(end, 'A');
    EXPECT_LT(Steady::now(), end);
}

TEST_F(SystemClockWait, LeavesTheProcessorToOthers) {
    const double before = ProcessorSeconds();
    const auto end = Steady::now() + milliseconds(500);
    while (Steady::now() < end)
        SystemClock().WaitForText(end, 'A');
    // Spinning would have taken all of it.
    EXPECT_LT(ProcessorSeconds() - before, 0.1);
}

/// Counts the passes over the window's events.
class CountingLoop : public wxEventLoop {
public:
    int passes = 0;

protected:
    void DoYieldFor(long /*eventsToProcess*/) override { ++passes; }
};

class SystemClockEvents : public SystemClockWait {
protected:
    /// A wait and the pass over the events that follows it, as in WaitForLine.
    static void WaitForOneText() {
        {
            const wxMutexLocker lock(SerialRxMutex);
            SerialRxBuffer += "A";
        }
        SystemClock().WaitForText(Steady::now() + seconds(60), 'A');
        SystemClock().HandleEvents();
        wxAsyncSerial::GetData();
    }

    CountingLoop m_loop;
    wxEventLoopActivator m_active{&m_loop};
};

TEST_F(SystemClockEvents, AreHandledAlsoIfTextComesAllTheTime) {
    const auto end = Steady::now() + seconds(60);
    SystemClock().HandleEvents();
    const int before = m_loop.passes;
    while (m_loop.passes < before + 3 && Steady::now() < end)
        WaitForOneText();
    EXPECT_LT(Steady::now(), end);
}

TEST_F(SystemClockEvents, AreNotHandledForEachPieceOfALine) {
    constexpr int Pieces = 1000;
    const auto begin = Steady::now();
    for (int piece = 0; piece < Pieces; ++piece)
        WaitForOneText();
    const auto intervals = (Steady::now() - begin) / milliseconds(5);
    EXPECT_LE(m_loop.passes, intervals + 1);
}

TEST_F(SystemClockEvents, AreHandledWhenAWaitBegins) {
    SystemClock().HandleEvents();
    WaitForOneText();
    const int before = m_loop.passes;
    SystemClock().HandleEvents();
    EXPECT_EQ(m_loop.passes, before + 1);
}

TEST_F(SystemClockEvents, AreHandledAfterAWaitWithoutText) {
    SystemClock().HandleEvents();
    const int before = m_loop.passes;
    SystemClock().WaitForText(Steady::now(), 'A');
    SystemClock().HandleEvents();
    EXPECT_EQ(m_loop.passes, before + 1);
}

TEST(PreciseSleep, DoesNotEndEarly) {
    for (const int ms : {1, 2, 2, 2, 5, 50}) {
        const auto end = Steady::now() + milliseconds(ms);
        SleepPrecisely(end);
        EXPECT_GE(Steady::now(), end) << ms;
    }
}

TEST(PreciseSleep, OfThePastEndsAtOnce) {
    const auto now = Steady::now();
    SleepPrecisely(now - seconds(1));
    EXPECT_LT(Steady::now(), now + seconds(60));
}

TEST(PreciseSleep, LeavesTheProcessorToOthers) {
    const double before = ProcessorSeconds();
    for (int i = 0; i < 100; ++i)
        SleepPrecisely(Steady::now() + milliseconds(2));
    EXPECT_LT(ProcessorSeconds() - before, 0.15) << "of 0.2 s";
}

} // namespace
