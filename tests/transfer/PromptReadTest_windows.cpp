// What the port layer asks a port for.
#include "transfer/PromptRead.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/serial_port.hpp>
#include <boost/asio/write.hpp>
#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

namespace {

DWORD BytesThere(PortHandle handle) {
    DWORD errors = 0;
    COMSTAT state{};
    return ClearCommError(handle, &errors, &state) ? state.cbInQue : 0;
}

bool AwaitBytes(PortHandle handle, DWORD count) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (BytesThere(handle) < count && std::chrono::steady_clock::now() < limit)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return BytesThere(handle) == count;
}

} // namespace

TEST(PromptRead, AsksForOneByteOfADeviceThatTellsNothing) {
    EXPECT_EQ(PromptReadSize(INVALID_HANDLE_VALUE, 512), 1u);
}

// Windows has no ports of its own to play on: whoever sets ZELK_LOOPED_PORT has a port that sends back what
// it gets.
TEST(PromptRead, AsksForWhatHasComeAndForOneByteBeforeThat) {
    const char* const name = std::getenv("ZELK_LOOPED_PORT");
    if (!name)
        GTEST_SKIP() << "there is no port";
    boost::asio::io_context io;
    boost::asio::serial_port port(io, name);
    const PortHandle handle = port.native_handle();
    EXPECT_EQ(PromptReadSize(handle, 512), 1u);
    for (const std::string& sent : {std::string("A"), std::string("T204\r"), std::string(300, 'x')}) {
        boost::asio::write(port, boost::asio::buffer(sent));
        ASSERT_TRUE(AwaitBytes(handle, static_cast<DWORD>(sent.size()))) << BytesThere(handle);
        EXPECT_EQ(PromptReadSize(handle, 512), sent.size());
        EXPECT_EQ(PromptReadSize(handle, 100), std::min<size_t>(sent.size(), 100));
        std::string got(sent.size(), '\0');
        boost::asio::read(port, boost::asio::buffer(got));
        EXPECT_EQ(got, sent);
        EXPECT_EQ(PromptReadSize(handle, 512), 1u);
    }
}
