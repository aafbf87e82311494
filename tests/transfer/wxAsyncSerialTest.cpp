// The port as the transfer code uses it: sending texts, polling for texts, no exceptions.
#include "transfer/wxAsyncSerial.h"

#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/SerialWaiting.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

const char MissingPort[] = "/dev/no-such-port";

// Polls until `size` characters have arrived or ten seconds have passed.
wxString ReceiveText(size_t size) {
    wxString text;
    Eventually([&] {
        text += wxAsyncSerial::GetData();
        return text.length() >= size;
    });
    return text;
}

void PutIntoBuffer(const wxString& text) {
    const wxMutexLocker lock(SerialRxMutex);
    SerialRxBuffer = text;
}

TEST(WxAsyncSerialGetData, WithNothingReceivedIsEmptyAndDoesNotWait) {
    PseudoTerminal device;
    wxAsyncSerial port(nullptr, device.SlaveName(), 9600);
    ASSERT_TRUE(port.isOpen());
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 1000; ++i)
        ASSERT_TRUE(wxAsyncSerial::GetData().empty());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST(WxAsyncSerialGetData, TakesWhatItGives) {
    PutIntoBuffer("T204000000D2\r");
    EXPECT_EQ(wxAsyncSerial::GetData(), "T204000000D2\r");
    EXPECT_EQ(wxAsyncSerial::GetData(), "");
}

TEST(WxAsyncSerialGetData, KeepsEveryByteAsTheCharacterOfItsValue) {
    PseudoTerminal device;
    wxAsyncSerial port(nullptr, device.SlaveName(), 9600);
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    ASSERT_TRUE(device.Write(all));
    const wxString text = ReceiveText(256);
    ASSERT_EQ(text.length(), 256u);
    for (unsigned byte = 0; byte < 256; ++byte)
        EXPECT_EQ(text[byte].GetValue(), byte) << "byte " << byte;
}

TEST(WxAsyncSerialGetData, PolledUnderLoadLosesNothing) {
    PseudoTerminal device;
    wxAsyncSerial port(nullptr, device.SlaveName(), 115200);
    std::string sent;
    for (int i = 0; sent.size() < 500000; ++i)
        sent += "T1" + std::to_string(i) + "\xE4\r";
    std::thread sender([&] { EXPECT_TRUE(device.Write(sent)); });
    const wxString text = ReceiveText(sent.size());
    sender.join();
    EXPECT_EQ(text.length(), sent.size());
    EXPECT_TRUE(text == wxString(sent.data(), wxConvISO8859_1, sent.size()));
}

TEST(WxAsyncSerialWrite, TwoInQuickSuccessionArriveInOrder) {
    PseudoTerminal device;
    wxAsyncSerial port(nullptr, device.SlaveName(), 9600);
    port.write("ID\r");
    port.write("DL200\r");
    EXPECT_EQ(device.Read(9), "ID\rDL200\r");
}

TEST(WxAsyncSerialOpen, OfAMissingDeviceThrowsNothingAndLeavesThePortClosed) {
    wxAsyncSerial port(nullptr);
    EXPECT_FALSE(port.isOpen());
    EXPECT_NO_THROW(port.open(MissingPort, 9600));
    EXPECT_FALSE(port.isOpen());
    EXPECT_TRUE(port.errorStatus());
    std::unique_ptr<wxAsyncSerial> other;
    EXPECT_NO_THROW(other = std::make_unique<wxAsyncSerial>(nullptr, MissingPort, 9600));
    EXPECT_FALSE(other->isOpen());
}

TEST(WxAsyncSerialOpen, OfADeviceInUseLeavesThePortClosed) {
    PseudoTerminal device;
    wxAsyncSerial first(nullptr, device.SlaveName(), 9600);
    wxAsyncSerial second(nullptr, device.SlaveName(), 9600);
    EXPECT_TRUE(first.isOpen());
    EXPECT_FALSE(second.isOpen());
    first.close();
    second.open(device.SlaveName(), 9600);
    EXPECT_TRUE(second.isOpen());
}

TEST(WxAsyncSerialOpen, EmptiesTheBufferAlsoWhenItFails) {
    PseudoTerminal device;
    PutIntoBuffer("old");
    wxAsyncSerial port(nullptr, device.SlaveName(), 9600);
    EXPECT_EQ(wxAsyncSerial::GetData(), "");
    PutIntoBuffer("old");
    port.open(MissingPort, 9600);
    EXPECT_EQ(wxAsyncSerial::GetData(), "");
}

TEST(WxAsyncSerialOpen, SetsEightBitsNoParityOneStopBitAndNoFlowControl) {
    PseudoTerminal device;
    wxAsyncSerial port(nullptr, device.SlaveName(), 9600);
    const termios settings = device.Settings();
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B9600));
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_cflag & (PARENB | CSTOPB | CRTSCTS), 0u);
    EXPECT_EQ(settings.c_iflag & (IXON | IXOFF), 0u);
}

TEST(WxAsyncSerialOpen, OfAnOpenPortClosesTheFirstDevice) {
    PseudoTerminal first;
    PseudoTerminal second;
    wxAsyncSerial port(nullptr, first.SlaveName(), 9600);
    port.open(second.SlaveName(), 9600);
    ASSERT_TRUE(port.isOpen());
    port.write("second\r");
    EXPECT_EQ(second.ReadUntil('\r'), "second\r");
    ASSERT_TRUE(second.Write("back"));
    EXPECT_EQ(ReceiveText(4), "back");
    wxAsyncSerial other(nullptr, first.SlaveName(), 9600);
    EXPECT_TRUE(other.isOpen());
}

TEST(WxAsyncSerialSpeed, ChangesAtOnceOnTheOpenPort) {
    PseudoTerminal device;
    wxAsyncSerial port(nullptr, device.SlaveName(), 9600);
    port.setBaudRate(115200);
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B115200));
}

TEST(WxAsyncSerialSpeed, OfAClosedPortOrOfAnUnknownValueIsPassedOver) {
    PseudoTerminal device;
    wxAsyncSerial port(nullptr);
    EXPECT_NO_THROW(port.setBaudRate(115200));
    port.open(device.SlaveName(), 9600);
    EXPECT_NO_THROW(port.setBaudRate(12345));
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B9600));
    EXPECT_TRUE(port.isOpen());
}

TEST(WxAsyncSerialClose, OfAClosedPortDoesNothing) {
    wxAsyncSerial port(nullptr);
    EXPECT_NO_THROW(port.close());
    EXPECT_NO_THROW(port.close());
    EXPECT_FALSE(port.isOpen());
}

TEST(WxAsyncSerialClose, EndsReceivingAndFreesTheDevice) {
    PseudoTerminal device;
    device.HoldSlave();
    wxAsyncSerial port(nullptr, device.SlaveName(), 9600);
    ASSERT_TRUE(device.Write("before"));
    EXPECT_EQ(ReceiveText(6), "before");
    port.close();
    ASSERT_TRUE(device.Write("after"));
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_EQ(wxAsyncSerial::GetData(), "");
    EXPECT_EQ(device.UnreadBytes(), 5);
}

TEST(WxAsyncSerialClose, IsDoneByTheDestructor) {
    PseudoTerminal device;
    std::make_unique<wxAsyncSerial>(nullptr, device.SlaveName(), 9600).reset();
    wxAsyncSerial next(nullptr, device.SlaveName(), 9600);
    EXPECT_TRUE(next.isOpen());
}

TEST(WxAsyncSerialVanish, ThrowsNothingAnywhere) {
    PseudoTerminal device;
    auto port = std::make_unique<wxAsyncSerial>(nullptr, device.SlaveName(), 9600);
    ASSERT_TRUE(device.Write("T20"));
    EXPECT_EQ(ReceiveText(3), "T20");
    device.CloseMaster();
    EXPECT_TRUE(Eventually([&] { return port->errorStatus(); }));
    EXPECT_TRUE(port->isOpen());
    EXPECT_NO_THROW(port->setBaudRate(115200));
    EXPECT_NO_THROW(port->write("ID\r"));
    EXPECT_EQ(wxAsyncSerial::GetData(), "");
    EXPECT_NO_THROW(port->close());
    EXPECT_FALSE(port->isOpen());
    EXPECT_NO_THROW(port.reset());
}

TEST(WxAsyncSerialVanish, IsSwallowedByTheDestructor) {
    PseudoTerminal device;
    auto port = std::make_unique<wxAsyncSerial>(nullptr, device.SlaveName(), 9600);
    device.CloseMaster();
    EXPECT_TRUE(Eventually([&] { return port->errorStatus(); }));
    EXPECT_NO_THROW(port.reset());
}

} // namespace
