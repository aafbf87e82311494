#include "campaign/Cable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace Campaign;
using std::chrono::milliseconds;

/// A cable between a port and an ear, without a radio.
class CableTest : public ::testing::Test {
protected:
    void Plug(std::vector<Fault> faults = {}) {
        m_cable.emplace(m_time, std::move(faults));
        m_cable->Connect({
            .radioHears =
                [this](uint8_t byte, int baud) {
                    m_heard += static_cast<char>(byte);
                    m_speeds.push_back(baud);
                    m_times.push_back(m_time.Milliseconds());
                },
            .radioRestarts = [this] { ++m_restarts; },
            .radioIsLeft = [this] { ++m_left; },
            .userCancels = [this] { m_cancelledAt = m_time.Milliseconds(); },
            .faultHappens = [](size_t) {},
            .radioSends = [](std::string_view) {},
            .programHears = [](std::string_view) {},
        });
        m_port.emplace(m_time, *m_cable);
        m_port->open("cable", 9600);
    }
    /// The radio hears these bytes of "ABCDE".
    std::string HeardOf(Fault fault) {
        fault.side = Side::ToRadio;
        Plug({fault});
        m_port->write("ABCDE");
        m_time.AdvanceTo(m_time.Now() + milliseconds(1000));
        return m_heard;
    }
    /// The program gets these bytes of "ABCDE".
    std::string GotOf(Fault fault) {
        fault.side = Side::ToProgram;
        Plug({fault});
        m_cable->TakeFromRadio("ABCDE");
        m_time.AdvanceTo(m_time.Now() + milliseconds(1000));
        return m_port->takeReceived().utf8_string();
    }

    VirtualTime m_time;
    std::optional<Cable> m_cable;
    std::optional<CablePort> m_port;
    std::string m_heard;
    std::vector<int> m_speeds;
    std::vector<int64_t> m_times;
    int m_restarts = 0, m_left = 0;
    int64_t m_cancelledAt = -1;
};

TEST_F(CableTest, CarriesAByteInTheTimeOfTenBits) {
    Plug();
    m_port->write(wxString('x', 96));
    m_time.AdvanceTo(Moment{} + milliseconds(101));
    EXPECT_EQ(m_heard.size(), 96U) << "9600 baud carry 96 bytes in 100 ms";
    EXPECT_EQ(m_times.front(), 1);
    EXPECT_EQ(m_times[47], 49);
    EXPECT_EQ(m_times.back(), 99);
}

TEST_F(CableTest, TakesANewSpeedForTheNextByte) {
    Plug();
    m_port->write("ab");
    m_time.AdvanceTo(Moment{} + milliseconds(50));
    m_port->setBaudRate(115200);
    m_port->write("cd");
    m_time.AdvanceTo(Moment{} + milliseconds(51));
    EXPECT_EQ(m_speeds, (std::vector{9600, 9600, 115200, 115200}));
}

TEST_F(CableTest, WaitsUntilAllIsWrittenOrTheTimeIsUp) {
    Plug();
    m_port->write(wxString('x', 96));
    EXPECT_FALSE(m_port->waitUntilWritten(50));
    EXPECT_EQ(m_time.Milliseconds(), 50);
    EXPECT_TRUE(m_port->waitUntilWritten(200));
    EXPECT_LE(m_time.Milliseconds(), 101);
}

TEST_F(CableTest, ForgetsWhatIsUnsentWhenThePortCloses) {
    Plug();
    m_port->write("abc");
    m_port->close();
    m_time.AdvanceTo(Moment{} + milliseconds(50));
    EXPECT_FALSE(m_port->isOpen());
    EXPECT_EQ(m_left, 1);
    EXPECT_LE(m_heard.size(), 1U);
    m_port->close();
    EXPECT_EQ(m_left, 1) << "closed twice";
}

TEST_F(CableTest, LosesBytes) {
    EXPECT_EQ(HeardOf({FaultKind::Lost, {}, 1, 2}), "ADE");
    EXPECT_TRUE(m_cable->IsSpoilt(Side::ToRadio));
    EXPECT_FALSE(m_cable->IsSpoilt(Side::ToProgram));
}

TEST_F(CableTest, LosesBytesOnTheWayBack) {
    EXPECT_EQ(GotOf({FaultKind::Lost, {}, 4, 9}), "ABCD");
    EXPECT_TRUE(m_cable->IsSpoilt(Side::ToProgram));
}

TEST_F(CableTest, DoublesAByte) {
    EXPECT_EQ(HeardOf({FaultKind::Doubled, {}, 2}), "ABCCDE");
}

TEST_F(CableTest, ChangesAByte) {
    EXPECT_EQ(GotOf({FaultKind::Changed, {}, 0, 0x20}), "aBCDE");
}

TEST_F(CableTest, AddsNoiseThatIsTheSameEachTime) {
    const std::string noisy = GotOf({FaultKind::NoiseBefore, {}, 1, 3});
    EXPECT_EQ(noisy, GotOf({FaultKind::NoiseBefore, {}, 1, 3}));
    EXPECT_TRUE(noisy.starts_with("A"));
    EXPECT_TRUE(noisy.ends_with("BCDE"));
    EXPECT_GT(noisy.size(), 5U);
    EXPECT_TRUE(GotOf({FaultKind::NoiseAfter, {}, 4, 2}).starts_with("ABCDE"));
}

TEST_F(CableTest, DelaysAByteAndAllAfterItInTheirOrder) {
    EXPECT_EQ(HeardOf({FaultKind::Delayed, {}, 2, 300}), "ABCDE");
    EXPECT_LT(m_times[1], 10);
    EXPECT_GE(m_times[2], 300);
    EXPECT_GE(m_times[4], 300);
    EXPECT_FALSE(m_cable->IsSpoilt(Side::ToRadio));
}

TEST_F(CableTest, IsCutInOneDirection) {
    EXPECT_EQ(HeardOf({FaultKind::Cut, {}, 2}), "AB");
    m_cable->TakeFromRadio("xyz");
    EXPECT_EQ(m_port->takeReceived(), "xyz");
    EXPECT_FALSE(m_port->errorStatus());
}

TEST_F(CableTest, IsPulledOutInBothDirections) {
    EXPECT_EQ(HeardOf({FaultKind::Unplugged, {}, 2}), "AB");
    m_cable->TakeFromRadio("xyz");
    EXPECT_EQ(m_port->takeReceived(), "");
    EXPECT_TRUE(m_port->errorStatus());
    EXPECT_TRUE(m_port->isOpen()) << "a port stays open until the program closes it";
    EXPECT_TRUE(m_port->waitUntilWritten(10)) << "nothing can be sent any more";
}

TEST_F(CableTest, CanBeTakenByAnotherProgram) {
    Plug({{FaultKind::PortTaken}});
    EXPECT_FALSE(m_port->isOpen());
    EXPECT_TRUE(m_port->errorStatus());
    EXPECT_EQ(m_cable->Happened(), std::vector{true});
}

TEST_F(CableTest, TellsTheRadioToRestartAndTheUserToCancel) {
    HeardOf({FaultKind::Restart, {}, 3, 20});
    EXPECT_EQ(m_restarts, 1);
    EXPECT_EQ(m_cable->Happened(), std::vector{true});
    m_heard.clear();
    HeardOf({FaultKind::Cancel, {}, 0, 400});
    EXPECT_GE(m_cancelledAt, 400);
}

TEST_F(CableTest, ForgetsFaultsThatAreNotReached) {
    EXPECT_EQ(HeardOf({FaultKind::Lost, {}, 5, 1}), "ABCDE");
    EXPECT_EQ(m_cable->Happened(), std::vector{false});
}

TEST_F(CableTest, ClockWaitsForTextUntilItArrivesOrTheTimeIsUp) {
    Plug();
    CableClock clock(m_time, *m_cable);
    m_time.At(Moment{} + milliseconds(30), [this] { m_cable->TakeFromRadio("A"); });
    clock.WaitForText(Moment{} + milliseconds(100), '\r');
    EXPECT_EQ(m_time.Milliseconds(), 30);
    EXPECT_EQ(m_port->takeReceived(), "A");
    clock.WaitForText(Moment{} + milliseconds(100), '\r');
    EXPECT_EQ(m_time.Milliseconds(), 100);
}

TEST_F(CableTest, ClockEndsAWaitWhenTheUserCancels) {
    Plug();
    CableClock clock(m_time, *m_cable);
    bool cancelled = false;
    m_time.At(Moment{} + milliseconds(30), [&] { clock.PressCancel(cancelled); });
    clock.WaitForText(Moment{} + milliseconds(100), '\r');
    EXPECT_EQ(m_time.Milliseconds(), 30);
    EXPECT_FALSE(cancelled) << "the program handles no events while it waits";
    clock.HandleEvents();
    EXPECT_TRUE(cancelled);
}

} // namespace
