// The system's clock of a transfer: its waits end on time and leave the processor to others.
#include "transfer/TransferClock.h"

#include "tests/support/PseudoTerminal.h"
#include "transfer/PreciseSleep.h"
#include "transfer/wxAsyncSerial.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <chrono>
#include <thread>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Steady = std::chrono::steady_clock;

/// Processor time of this thread so far.
std::chrono::microseconds ProcessorTime() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    const auto length = [](const timeval& time) {
        return seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return length(usage.ru_utime) + length(usage.ru_stime);
}

class SystemClockWait : public ::testing::Test {
protected:
    void SetUp() override { wxAsyncSerial::GetData(); }

    PseudoTerminal m_device;
    wxAsyncSerial m_port{nullptr, m_device.SlaveName(), 9600};
};

TEST_F(SystemClockWait, ForDataEndsWhenThePortsThreadDeliversSome) {
    ASSERT_TRUE(m_port.isOpen());
    std::thread radio([this] {
        std::this_thread::sleep_for(milliseconds(50));
        m_device.Write("A");
    });
    // Without the wake-up this takes a minute.
    const auto end = Steady::now() + seconds(60);
    wxAsyncSerial::WaitForData(end);
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
    wxAsyncSerial::WaitForData(end);
    EXPECT_LT(Steady::now(), end);
    wxAsyncSerial::GetData();
}

TEST_F(SystemClockWait, ForDataEndsWhenTheTimeIsUp) {
    const auto end = Steady::now() + milliseconds(30);
    wxAsyncSerial::WaitForData(end);
    EXPECT_GE(Steady::now(), end);
}

TEST_F(SystemClockWait, ForTextEndsEarlyForTheEventsOfTheWindow) {
    const auto end = Steady::now() + seconds(60);
    SystemClock().WaitForText(end);
    EXPECT_LT(Steady::now(), end);
}

TEST_F(SystemClockWait, LeavesTheProcessorToOthers) {
    const auto before = ProcessorTime();
    const auto end = Steady::now() + milliseconds(500);
    while (Steady::now() < end)
        SystemClock().WaitForText(end);
    // Spinning would have taken all of it.
    EXPECT_LT(ProcessorTime() - before, milliseconds(100));
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
    const auto before = ProcessorTime();
    for (int i = 0; i < 100; ++i)
        SleepPrecisely(Steady::now() + milliseconds(2));
    EXPECT_LT(ProcessorTime() - before, milliseconds(50)) << "of 200 ms";
}

} // namespace
