// Failures to open, devices that disappear, closing and opening again.
#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/SerialReceiver.h"
#include "transfer/AsyncSerial.h"

#include <boost/system/system_error.hpp>
#include <gtest/gtest.h>

#include <optional>

namespace {

const char MissingPort[] = "/dev/no-such-port";

bool OpenThrows(AsyncSerial& port, const std::string& name, unsigned int baudRate = 9600) {
    try {
        port.open(name, baudRate);
    } catch (const boost::system::system_error&) {
        return true;
    }
    return false;
}

// Text of the exception that closing throws, empty if it throws none.
std::string CloseFailure(AsyncSerial& port) {
    try {
        port.close();
    } catch (const boost::system::system_error& failure) {
        return failure.what();
    }
    return "";
}

bool SaysErrorWhileClosing(const std::string& text) {
    return text.rfind("Error while closing the device", 0) == 0;
}

TEST(AsyncSerialOpen, OfAMissingDeviceThrowsAndLeavesThePortClosedWithItsErrorFlag) {
    CallbackAsyncSerial port;
    EXPECT_FALSE(port.errorStatus());
    EXPECT_TRUE(OpenThrows(port, MissingPort));
    EXPECT_FALSE(port.isOpen());
    EXPECT_TRUE(port.errorStatus());
}

TEST(AsyncSerialOpen, ByTheConstructorThrowsToo) {
    using Options = boost::asio::serial_port_base;
    EXPECT_THROW(CallbackAsyncSerial(MissingPort, 9600, Options::parity(), Options::character_size(8),
                                     Options::flow_control(), Options::stop_bits()),
                 boost::system::system_error);
}

TEST(AsyncSerialOpen, OfAFileThatIsNoPortThrows) {
    CallbackAsyncSerial port;
    EXPECT_TRUE(OpenThrows(port, "/dev/null"));
    EXPECT_FALSE(port.isOpen());
}

TEST(AsyncSerialOpen, AfterAFailedOneSucceedsAndClearsTheErrorFlag) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    EXPECT_TRUE(OpenThrows(port, MissingPort));
    port.open(device.SlaveName(), 9600);
    EXPECT_TRUE(port.isOpen());
    EXPECT_FALSE(port.errorStatus());
}

TEST(AsyncSerialOpen, AtASpeedThatTheDeviceLacksThrowsAndGivesTheDeviceUp) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    EXPECT_TRUE(OpenThrows(port, device.SlaveName(), 12345));
    EXPECT_FALSE(port.isOpen());
    EXPECT_TRUE(port.errorStatus());
    CallbackAsyncSerial other;
    EXPECT_FALSE(OpenThrows(other, device.SlaveName()));
    other.close();
    EXPECT_FALSE(OpenThrows(port, device.SlaveName()));
}

TEST(AsyncSerialOpen, OfAnOpenPortClosesTheFirstDevice) {
    PseudoTerminal first;
    PseudoTerminal second;
    SerialReceiver receiver;
    CallbackAsyncSerial port;
    port.setCallback(receiver.Callback());
    port.open(first.SlaveName(), 9600);
    port.open(second.SlaveName(), 9600);
    EXPECT_TRUE(port.isOpen());
    EXPECT_FALSE(port.errorStatus());
    port.writeString("for the second\r");
    EXPECT_EQ(second.ReadUntil('\r'), "for the second\r");
    ASSERT_TRUE(second.Write("back"));
    ASSERT_TRUE(receiver.WaitForSize(4));
    EXPECT_EQ(receiver.Text(), "back");
    CallbackAsyncSerial other;
    EXPECT_FALSE(OpenThrows(other, first.SlaveName()));
    EXPECT_EQ(first.Read(1, std::chrono::milliseconds(50)), "");
}

TEST(AsyncSerialClose, OfAClosedPortDoesNothing) {
    CallbackAsyncSerial port;
    EXPECT_NO_THROW(port.close());
    EXPECT_TRUE(OpenThrows(port, MissingPort));
    EXPECT_NO_THROW(port.close()); // even with the error flag set
    EXPECT_FALSE(port.isOpen());
}

TEST(AsyncSerialClose, CanBeFollowedByOpenAnyNumberOfTimes) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    for (int round = 0; round < 100; ++round) {
        port.open(device.SlaveName(), 9600);
        const std::string line = "round " + std::to_string(round) + "\r";
        port.writeString(line);
        ASSERT_EQ(device.ReadUntil('\r'), line);
        EXPECT_EQ(CloseFailure(port), "") << "round " << round;
        EXPECT_FALSE(port.isOpen());
    }
}

TEST(AsyncSerialClose, WithAWriteThatCannotGoOnEndsAndThrows) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    port.writeString(std::string(100000, 'x')); // no one reads it
    EXPECT_EQ(device.Read(1), "x");
    EXPECT_TRUE(SaysErrorWhileClosing(CloseFailure(port)));
    EXPECT_FALSE(port.isOpen());
}

TEST(AsyncSerialClose, DropsWhatWasQueuedSoThatTheNextDeviceNeverGetsIt) {
    PseudoTerminal stuck;
    CallbackAsyncSerial port;
    port.open(stuck.SlaveName(), 9600);
    port.writeString(std::string(100000, 'x'));
    EXPECT_EQ(stuck.Read(1), "x");
    port.writeString("stale");
    CloseFailure(port);
    PseudoTerminal device;
    port.open(device.SlaveName(), 9600);
    port.writeString("fresh\r");
    EXPECT_EQ(device.ReadUntil('\r'), "fresh\r");
}

TEST(AsyncSerialClose, ForgetsWhatWasWrittenBehindItSoThatTheNextDeviceNeverGetsIt) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.writeString("before the first opening\r");
    port.open(device.SlaveName(), 9600);
    port.close();
    port.writeString("after the close\r");
    port.open(device.SlaveName(), 9600);
    port.writeString("fresh\r");
    EXPECT_EQ(device.ReadUntil('\r'), "fresh\r");
}

/// A port whose device can block the line.
class AsyncSerialUnsent : public ::testing::Test {
protected:
    AsyncSerialUnsent() {
        m_device.HoldSlave();
        m_port.open(m_device.SlaveName(), 9600);
    }

    static constexpr std::chrono::seconds Forever{60};

    PseudoTerminal m_device;
    CallbackAsyncSerial m_port;
};

TEST_F(AsyncSerialUnsent, IsWaitedForUntilTheDeviceHasTakenIt) {
    m_device.HoldBack(true);
    m_port.writeString("T9030000FC\r");
    EXPECT_FALSE(m_port.waitUntilWritten(std::chrono::milliseconds(20)));
    std::thread later([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        m_device.HoldBack(false);
    });
    EXPECT_TRUE(m_port.waitUntilWritten(Forever));
    EXPECT_EQ(CloseFailure(m_port), "");
    EXPECT_EQ(m_device.ReadUntil('\r', std::chrono::milliseconds(100)), "T9030000FC\r");
    later.join();
}

TEST_F(AsyncSerialUnsent, InSeveralPiecesIsWaitedForToTheLastByte) {
    std::string text;
    for (int piece = 0; piece < 200; ++piece) {
        text += "piece " + std::to_string(piece) + "\r";
        m_port.writeString("piece " + std::to_string(piece) + "\r");
    }
    EXPECT_TRUE(m_port.waitUntilWritten(Forever));
    m_port.close();
    EXPECT_EQ(m_device.Read(text.size(), std::chrono::milliseconds(100)), text);
}

TEST_F(AsyncSerialUnsent, OfALineThatIsStuckIsGivenUpAfterTheLimitAndNeverReachesTheNextDevice) {
    m_device.HoldBack(true);
    m_port.writeString("stale\r");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(m_port.waitUntilWritten(std::chrono::milliseconds(200)));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
    CloseFailure(m_port);
    EXPECT_LT(std::chrono::steady_clock::now() - start, Forever);
    EXPECT_FALSE(m_port.isOpen());
    m_device.HoldBack(false);
    m_port.open(m_device.SlaveName(), 9600);
    m_port.writeString("fresh\r");
    EXPECT_EQ(m_device.ReadUntil('\r'), "fresh\r");
}

TEST_F(AsyncSerialUnsent, IsNotWaitedForWhereThereIsNone) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(m_port.waitUntilWritten(Forever));
    m_port.writeString("");
    EXPECT_TRUE(m_port.waitUntilWritten(Forever));
    m_port.close();
    m_port.writeString("dropped");
    EXPECT_TRUE(m_port.waitUntilWritten(Forever));
    EXPECT_LT(std::chrono::steady_clock::now() - start, Forever / 2);
}

TEST_F(AsyncSerialUnsent, OfADeviceThatVanishesIsNotWaitedFor) {
    const auto start = std::chrono::steady_clock::now();
    m_port.writeString(std::string(100000, 'x'));
    EXPECT_EQ(m_device.Read(1), "x");
    std::thread unplug([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        m_device.CloseMaster();
    });
    EXPECT_FALSE(m_port.waitUntilWritten(Forever));
    unplug.join();
    EXPECT_TRUE(Eventually([this] { return m_port.errorStatus(); }));
    m_port.writeString("into the void");
    EXPECT_FALSE(m_port.waitUntilWritten(Forever));
    EXPECT_LT(std::chrono::steady_clock::now() - start, Forever / 2);
}

TEST(AsyncSerialVanish, InAReadSetsTheErrorFlagAndKeepsThePortOpenUntilClose) {
    std::optional<PseudoTerminal> device(std::in_place);
    CallbackAsyncSerial port;
    port.open(device->SlaveName(), 9600);
    device->CloseMaster();
    EXPECT_TRUE(Eventually([&] { return port.errorStatus(); }));
    EXPECT_TRUE(port.isOpen());
    EXPECT_TRUE(SaysErrorWhileClosing(CloseFailure(port)));
    EXPECT_FALSE(port.isOpen());
    EXPECT_EQ(CloseFailure(port), "");
}

TEST(AsyncSerialVanish, InAWriteSetsTheErrorFlagAndCloseEnds) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    port.writeString(std::string(100000, 'x'));
    EXPECT_EQ(device.Read(1), "x");
    device.CloseMaster();
    EXPECT_TRUE(Eventually([&] { return port.errorStatus(); }));
    port.writeString("into the void");
    EXPECT_TRUE(port.isOpen());
    EXPECT_TRUE(SaysErrorWhileClosing(CloseFailure(port)));
}

TEST(AsyncSerialVanish, LeavesThePortFitForAnotherDevice) {
    CallbackAsyncSerial port;
    SerialReceiver receiver;
    port.setCallback(receiver.Callback());
    {
        PseudoTerminal device;
        port.open(device.SlaveName(), 9600);
        port.writeString(std::string(100000, 'x'));
        EXPECT_EQ(device.Read(1), "x");
    }
    EXPECT_TRUE(Eventually([&] { return port.errorStatus(); }));
    port.writeString("stale");
    CloseFailure(port);
    PseudoTerminal device;
    port.open(device.SlaveName(), 9600);
    EXPECT_FALSE(port.errorStatus());
    port.writeString("fresh\r");
    EXPECT_EQ(device.ReadUntil('\r'), "fresh\r");
    ASSERT_TRUE(device.Write("back"));
    ASSERT_TRUE(receiver.WaitForSize(4));
    EXPECT_EQ(receiver.Text(), "back");
    EXPECT_EQ(CloseFailure(port), "");
}

TEST(AsyncSerialVanish, IsSwallowedByTheDestructor) {
    PseudoTerminal device;
    {
        CallbackAsyncSerial port;
        port.open(device.SlaveName(), 9600);
        device.CloseMaster();
        EXPECT_TRUE(Eventually([&] { return port.errorStatus(); }));
    }
    SUCCEED();
}

TEST(AsyncSerialVanish, AtAnyMomentOfOpeningWritingOrClosingNeitherHangsNorCrashes) {
    for (int round = 0; round < 150; ++round) {
        PseudoTerminal device;
        const std::string name = device.SlaveName();
        std::thread unplug([&device, round] {
            std::this_thread::sleep_for(std::chrono::microseconds(round * 7));
            device.CloseMaster();
        });
        CallbackAsyncSerial port;
        if (!OpenThrows(port, name)) {
            port.writeString("T204000000D2\r");
            try {
                port.setBaudRate(115200);
            } catch (const boost::system::system_error&) {
                // The device had already disappeared.
            }
            CloseFailure(port);
        }
        EXPECT_FALSE(port.isOpen()) << "round " << round;
        unplug.join();
    }
}

TEST(AsyncSerialVanish, WhileTheSpeedIsBeingChangedIsNoRace) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    std::thread unplug([&device] {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        device.CloseMaster();
    });
    bool refused = false;
    for (unsigned i = 0; !refused; ++i) {
        try {
            port.setBaudRate(i % 2 ? 9600 : 115200);
        } catch (const boost::system::system_error&) {
            refused = true;
        }
    }
    unplug.join();
    EXPECT_TRUE(Eventually([&] { return port.errorStatus(); }));
}

TEST(AsyncSerialSpeed, OfAClosedPortThrows) {
    CallbackAsyncSerial port;
    EXPECT_THROW(port.setBaudRate(115200), boost::system::system_error);
}

} // namespace
