// Data through an open port: bytes, order, sizes, speed.
#include "transfer/AsyncSerial.h"

#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/SerialReceiver.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <stdexcept>
#include <type_traits>

namespace {

using Options = boost::asio::serial_port_base;

static_assert(std::is_abstract_v<AsyncSerial>);
static_assert(!std::is_copy_constructible_v<AsyncSerial>);
static_assert(!std::is_copy_assignable_v<CallbackAsyncSerial>);
static_assert(std::has_virtual_destructor_v<CallbackAsyncSerial>);

// A text in which every position differs from its neighbours.
std::string Pattern(size_t size, unsigned seed) {
    std::string text;
    for (size_t i = 0; text.size() < size; ++i)
        text += std::to_string(seed) + ":" + std::to_string(i) + ";";
    text.resize(size);
    return text;
}

TEST(AsyncSerialRead, HandsOverWhatTheDeviceSends) {
    PseudoTerminal device;
    SerialReceiver receiver;
    CallbackAsyncSerial port;
    port.setCallback(receiver.Callback());
    port.open(device.SlaveName(), 9600);
    EXPECT_TRUE(port.isOpen());
    EXPECT_FALSE(port.errorStatus());
    ASSERT_TRUE(device.Write("T204000000D2\r"));
    ASSERT_TRUE(receiver.WaitForSize(13));
    EXPECT_EQ(receiver.Text(), "T204000000D2\r");
}

TEST(AsyncSerialRead, TheOpeningConstructorReadsToo) {
    PseudoTerminal device;
    SerialReceiver receiver;
    CallbackAsyncSerial port(device.SlaveName(), 9600, Options::parity(Options::parity::none),
                             Options::character_size(8), Options::flow_control(Options::flow_control::none),
                             Options::stop_bits(Options::stop_bits::one));
    EXPECT_TRUE(port.isOpen());
    port.setCallback(receiver.Callback());
    ASSERT_TRUE(device.Write("OK\r"));
    EXPECT_TRUE(receiver.WaitForSize(3));
}

TEST(AsyncSerialRead, OfMoreThan512BytesComesInPiecesOf512) {
    PseudoTerminal device;
    SerialReceiver receiver;
    std::promise<void> allSent;
    auto sent = allSent.get_future().share();
    CallbackAsyncSerial port;
    auto collect = receiver.Callback();
    port.setCallback([sent, collect](const char* data, size_t size) {
        sent.wait(); // until then the device buffers everything
        collect(data, size);
    });
    port.open(device.SlaveName(), 9600);
    const std::string text = Pattern(3000, 1);
    EXPECT_TRUE(device.Write(text));
    allSent.set_value();
    ASSERT_TRUE(receiver.WaitForSize(text.size()));
    EXPECT_EQ(receiver.Text(), text);
    const auto sizes = receiver.Sizes();
    EXPECT_EQ(*std::max_element(sizes.begin(), sizes.end()), 512u);
}

TEST(AsyncSerialRead, WithoutACallbackDropsWhatCameAndGoesOn) {
    PseudoTerminal device;
    device.HoldSlave();
    SerialReceiver receiver;
    CallbackAsyncSerial port;
    port.setCallback(receiver.Callback());
    port.open(device.SlaveName(), 9600);
    port.clearCallback();
    ASSERT_TRUE(device.Write("lost"));
    ASSERT_TRUE(Eventually([&] { return device.UnreadBytes() == 0; }));
    // The read is over, but its completion may still be running. After a second read the first is complete.
    ASSERT_TRUE(device.Write("lost"));
    ASSERT_TRUE(Eventually([&] { return device.UnreadBytes() == 0; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    port.setCallback(receiver.Callback());
    ASSERT_TRUE(device.Write("kept"));
    ASSERT_TRUE(receiver.WaitForSize(4));
    EXPECT_EQ(receiver.Text(), "kept");
}

TEST(AsyncSerialRead, StopsBeforeItsObjectIsGone) {
    PseudoTerminal device;
    device.HoldSlave();
    std::atomic<bool> stop{false};
    std::thread sender([&] {
        while (!stop)
            device.Write("0123456789", std::chrono::milliseconds(50));
    });
    for (int round = 0; round < 30; ++round) {
        auto calls = std::make_unique<std::atomic<int>>(0);
        auto port = std::make_unique<CallbackAsyncSerial>();
        port->setCallback([counter = calls.get()](const char*, size_t) { ++*counter; });
        port->open(device.SlaveName(), 9600);
        EXPECT_TRUE(Eventually([&] { return *calls > 0; })) << "round " << round;
        port.reset();
        const int atTheEnd = *calls;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        EXPECT_EQ(*calls, atTheEnd) << "round " << round;
    }
    stop = true;
    sender.join();
}

TEST(AsyncSerialRead, ClearingTheCallbackWaitsForTheOneThatRuns) {
    PseudoTerminal device;
    std::atomic<bool> inside{false};
    std::atomic<bool> through{false};
    CallbackAsyncSerial port;
    port.setCallback([&](const char*, size_t) {
        inside = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        through = true;
    });
    port.open(device.SlaveName(), 9600);
    ASSERT_TRUE(device.Write("x"));
    ASSERT_TRUE(Eventually([&] { return inside.load(); }));
    port.clearCallback();
    EXPECT_TRUE(through);
}

TEST(AsyncSerialWrite, TwoInQuickSuccessionArriveInOrder) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    port.writeString("first ");
    port.writeString("second\r");
    EXPECT_EQ(device.ReadUntil('\r'), "first second\r");
}

TEST(AsyncSerialWrite, DoesNotWaitForThePortsThread) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    std::promise<void> reading, end;
    auto ended = end.get_future();
    port.setCallback([&](const char*, size_t) {
        reading.set_value();
        ended.wait();
    });
    port.open(device.SlaveName(), 9600);
    ASSERT_TRUE(device.Write("A"));
    reading.get_future().wait();
    port.writeString("while the thread is busy");
    EXPECT_EQ(device.Read(24), "while the thread is busy");
    end.set_value();
    port.close();
}

TEST(AsyncSerialWrite, ThatComesWhileOneIsInProgressFollowsIt) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    // More than the device takes without a reader, so the first write stays in progress.
    const std::string first = Pattern(100000, 1);
    const std::string second = Pattern(70000, 2);
    port.writeString(first);
    std::string received = device.Read(1);
    port.writeString(second);
    port.writeString("end\r");
    received += device.Read(first.size() + second.size() + 3);
    EXPECT_EQ(received, first + second + "end\r");
}

TEST(AsyncSerialWrite, ManySmallOnesUnderLoadLoseNothing) {
    PseudoTerminal device;
    SerialReceiver receiver;
    CallbackAsyncSerial port;
    port.setCallback(receiver.Callback());
    port.open(device.SlaveName(), 115200);
    const std::string incoming = Pattern(200000, 9);
    std::thread sender([&] { EXPECT_TRUE(device.Write(incoming)); });
    std::string outgoing;
    for (unsigned i = 0; i < 3000; ++i) {
        const std::string line = "T1" + Pattern(1 + i % 97, i) + "\r";
        outgoing += line;
        port.writeString(line);
    }
    const std::string received = device.Read(outgoing.size());
    sender.join();
    EXPECT_TRUE(received == outgoing) << received.size() << " of " << outgoing.size() << " bytes";
    ASSERT_TRUE(receiver.WaitForSize(incoming.size()));
    EXPECT_TRUE(receiver.Text() == incoming);
}

TEST(AsyncSerialWrite, TakesBytesVectorsAndTextsOfAnyByte) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    port.write(all.data(), 100);
    port.write(std::vector<char>(all.begin() + 100, all.begin() + 180));
    port.writeString(all.substr(180));
    EXPECT_EQ(device.Read(256), all);
}

TEST(AsyncSerialWrite, OfNothingHindersNoLaterOne) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    port.writeString("");
    port.write(std::vector<char>());
    port.writeString("A\r");
    EXPECT_EQ(device.ReadUntil('\r'), "A\r");
}

TEST(AsyncSerialSpeed, ChangesAtOnceOnTheOpenPort) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    port.open(device.SlaveName(), 9600);
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B9600));
    port.setBaudRate(115200);
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B115200));
    port.writeString("still here\r");
    EXPECT_EQ(device.ReadUntil('\r'), "still here\r");
}

TEST(AsyncSerialSettings, ReachTheDevice) {
    // A pseudo-terminal always keeps 8 bits without parity. The other settings can be read back.
    PseudoTerminal device;
    CallbackAsyncSerial port(
        device.SlaveName(), 19200, Options::parity(Options::parity::none), Options::character_size(8),
        Options::flow_control(Options::flow_control::hardware), Options::stop_bits(Options::stop_bits::two));
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B19200));
    EXPECT_TRUE(device.Settings().c_cflag & CRTSCTS);
    EXPECT_TRUE(device.Settings().c_cflag & CSTOPB);
    port.close();
    port.open(device.SlaveName(), 9600, Options::parity(Options::parity::none), Options::character_size(8),
              Options::flow_control(Options::flow_control::software),
              Options::stop_bits(Options::stop_bits::one));
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B9600));
    EXPECT_FALSE(device.Settings().c_cflag & CRTSCTS);
    EXPECT_FALSE(device.Settings().c_cflag & CSTOPB);
    EXPECT_TRUE(device.Settings().c_iflag & IXON);
}

TEST(AsyncSerialSettings, OutOfRangeAreRefusedByTheirName) {
    // 3 is no value of these enums, but their bits can hold it.
    struct Case {
        const char* text;
        std::function<void()> make;
    };
    const Case cases[] = {
        {"invalid stop_bits value", [] { Options::stop_bits option(Options::stop_bits::type(3)); }},
        {"invalid flow_control value", [] { Options::flow_control option(Options::flow_control::type(3)); }},
        {"invalid character_size value", [] { Options::character_size option(9); }},
        {"invalid character_size value", [] { Options::character_size option(4); }},
        {"invalid parity value", [] { Options::parity option(Options::parity::type(3)); }},
    };
    for (const Case& entry : cases) {
        try {
            entry.make();
            ADD_FAILURE() << "accepted where expected: " << entry.text;
        } catch (const std::out_of_range& refusal) {
            EXPECT_STREQ(refusal.what(), entry.text);
        }
    }
}

} // namespace
