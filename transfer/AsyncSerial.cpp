// Full-duplex asynchronous serial port with a background thread, a write queue and a read callback.
#include "transfer/AsyncSerial.h"

#include "transfer/PortLines.h"
#include "transfer/PortLock.h"
#include "transfer/PromptRead.h"
#include "transfer/PromptThread.h"
#include "transfer/PromptWrite.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/serial_port.hpp>
#include <boost/asio/write.hpp>
#include <boost/smart_ptr/shared_array.hpp>
#include <boost/system/system_error.hpp>

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

struct AsyncSerialImpl {
    boost::asio::io_context io;
    boost::asio::serial_port port{io};
    std::thread backgroundThread;
    std::atomic<bool> open{false}; // read by the port's thread without a lock
    bool error = false;
    mutable std::mutex errorMutex;

    std::vector<char> writeQueue;
    boost::shared_array<char> writeBuffer; // empty while no write is in progress
    size_t writeBufferSize = 0;
    std::mutex writeQueueMutex;
    std::condition_variable writesEnded; // signals an empty queue or a failure

    std::array<char, 512> readBuffer{};
    AsyncSerial::ReadCallback callback;
    std::mutex callbackMutex; // held while the callback runs, so that clearing it waits for its end

    std::mutex portMutex; // separates a change of speed from the port's thread closing a failed device
};

AsyncSerial::AsyncSerial() : m_impl(std::make_shared<AsyncSerialImpl>()) {}

AsyncSerial::AsyncSerial(const std::string& deviceName, unsigned int baudRate,
                         boost::asio::serial_port_base::parity parity,
                         boost::asio::serial_port_base::character_size characterSize,
                         boost::asio::serial_port_base::flow_control flowControl,
                         boost::asio::serial_port_base::stop_bits stopBits)
    : AsyncSerial() {
    open(deviceName, baudRate, parity, characterSize, flowControl, stopBits);
}

AsyncSerial::~AsyncSerial() {
    try {
        close();
    } catch (...) {
        // Destructors must not throw.
    }
}

void AsyncSerial::open(const std::string& deviceName, unsigned int baudRate,
                       boost::asio::serial_port_base::parity parity,
                       boost::asio::serial_port_base::character_size characterSize,
                       boost::asio::serial_port_base::flow_control flowControl,
                       boost::asio::serial_port_base::stop_bits stopBits) {
    if (isOpen())
        close();

    setErrorStatus(true); // remains if a step below throws
    auto& port = m_impl->port;
    port.open(deviceName);
    try {
        if (const int held = LockPort(port.native_handle()); held != 0) {
            // Not doClose, which would clear the mark of the opener that holds the device.
            port.close();
            throw boost::system::system_error(held, boost::system::system_category(), "lock");
        }
        port.set_option(boost::asio::serial_port_base::baud_rate(baudRate));
        port.set_option(parity);
        port.set_option(characterSize);
        port.set_option(flowControl);
        port.set_option(stopBits);
        RaisePortLines(port.native_handle());

        boost::asio::post(m_impl->io, [this] { doRead(); });
        // Before the thread runs, so that a device that fails at its first read counts as opened.
        setErrorStatus(false);
        m_impl->open = true;
        std::thread thread([impl = m_impl] {
            const PromptThread prompt;
            impl->io.run();
        });
        m_impl->backgroundThread.swap(thread);
    } catch (...) {
        m_impl->open = false;
        doClose();
        dropPendingWork();
        setErrorStatus(true);
        throw;
    }
}

bool AsyncSerial::isOpen() const {
    return m_impl->open;
}

bool AsyncSerial::errorStatus() const {
    const std::lock_guard lock(m_impl->errorMutex);
    return m_impl->error;
}

void AsyncSerial::setErrorStatus(bool error) {
    const std::lock_guard lock(m_impl->errorMutex);
    m_impl->error = error;
}

void AsyncSerial::close() {
    if (!isOpen())
        return;

    // First, so that the read cancelled by doClose isn't taken for a device failure.
    m_impl->open = false;
    boost::asio::post(m_impl->io, [this] { doClose(); });
    m_impl->backgroundThread.join();
    dropPendingWork();
    if (errorStatus())
        throw boost::system::system_error(boost::system::error_code(), "Error while closing the device");
}

// After a device failure the thread has ended and runs no posted work, not even the close. Leftover work must
// not reach the port that is opened next.
void AsyncSerial::dropPendingWork() {
    m_impl->io.restart();
    m_impl->io.poll();
    m_impl->io.restart();
    const std::lock_guard lock(m_impl->writeQueueMutex);
    m_impl->writeQueue.clear();
    m_impl->writeBuffer.reset();
    m_impl->writeBufferSize = 0;
}

void AsyncSerial::setBaudRate(unsigned int baudRate) {
    const std::lock_guard lock(m_impl->portMutex);
    m_impl->port.set_option(boost::asio::serial_port_base::baud_rate(baudRate));
}

void AsyncSerial::write(const char* data, size_t size) {
    // Otherwise the port opened next would send them.
    if (!isOpen())
        return;
    {
        const std::lock_guard lock(m_impl->writeQueueMutex);
        // Waking the port's thread would delay the first byte.
        size_t written = 0;
        if (m_impl->writeQueue.empty() && !m_impl->writeBuffer)
            written = writeAtOnce(data, size);
        if (written == size)
            return;
        m_impl->writeQueue.insert(m_impl->writeQueue.end(), data + written, data + size);
    }
    boost::asio::post(m_impl->io, [this] { doWrite(); });
}

void AsyncSerial::write(const std::vector<char>& data) {
    write(data.data(), data.size());
}

void AsyncSerial::writeString(const std::string& text) {
    write(text.data(), text.size());
}

bool AsyncSerial::waitUntilWritten(std::chrono::milliseconds limit) {
    std::unique_lock lock(m_impl->writeQueueMutex);
    const auto allWritten = [this] { return m_impl->writeQueue.empty() && !m_impl->writeBuffer; };
    m_impl->writesEnded.wait_for(lock, limit, [&] { return allWritten() || errorStatus(); });
    return allWritten();
}

void AsyncSerial::setReadCallback(const ReadCallback& callback) {
    const std::lock_guard lock(m_impl->callbackMutex);
    m_impl->callback = callback;
}

void AsyncSerial::clearReadCallback() {
    const std::lock_guard lock(m_impl->callbackMutex);
    m_impl->callback = nullptr;
}

void AsyncSerial::doRead() {
    const size_t size = PromptReadSize(m_impl->port.native_handle(), m_impl->readBuffer.size());
    m_impl->port.async_read_some(
        boost::asio::buffer(m_impl->readBuffer.data(), size),
        [this](const boost::system::error_code& error, size_t count) { readEnd(error, count); });
}

void AsyncSerial::readEnd(const boost::system::error_code& error, size_t bytesTransferred) {
    if (error) {
        if (isOpen())
            fail();
        return;
    }
    {
        const std::lock_guard lock(m_impl->callbackMutex);
        if (m_impl->callback)
            m_impl->callback(m_impl->readBuffer.data(), bytesTransferred);
    }
    doRead();
}

size_t AsyncSerial::writeAtOnce(const char* data, size_t size) {
    const std::lock_guard lock(m_impl->portMutex);
    return m_impl->port.is_open() ? WritePromptly(m_impl->port.native_handle(), data, size) : 0;
}

void AsyncSerial::doWrite() {
    const std::lock_guard lock(m_impl->writeQueueMutex);
    // A write in progress takes the queue when it ends; the previous write may have taken all of it.
    if (!m_impl->writeBuffer && !m_impl->writeQueue.empty())
        startWrite();
}

// Called with writeQueueMutex held.
void AsyncSerial::startWrite() {
    m_impl->writeBufferSize = m_impl->writeQueue.size();
    m_impl->writeBuffer.reset(new char[m_impl->writeBufferSize]);
    std::copy(m_impl->writeQueue.begin(), m_impl->writeQueue.end(), m_impl->writeBuffer.get());
    m_impl->writeQueue.clear();
    boost::asio::async_write(m_impl->port,
                             boost::asio::buffer(m_impl->writeBuffer.get(), m_impl->writeBufferSize),
                             [this](const boost::system::error_code& error, size_t) { writeEnd(error); });
}

void AsyncSerial::writeEnd(const boost::system::error_code& error) {
    if (error)
        return fail();
    const std::lock_guard lock(m_impl->writeQueueMutex);
    if (m_impl->writeQueue.empty()) {
        m_impl->writeBuffer.reset();
        m_impl->writeBufferSize = 0;
        m_impl->writesEnded.notify_all();
    } else {
        startWrite();
    }
}

// Called when the device is gone or the port is being closed.
void AsyncSerial::fail() {
    setErrorStatus(true);
    doClose();
    // The lock keeps the notification from falling between a waiting owner's check of the flag and its sleep.
    const std::lock_guard lock(m_impl->writeQueueMutex);
    m_impl->writesEnded.notify_all();
}

// Continues after a failed step: the device must be released in any case.
void AsyncSerial::doClose() {
    const std::lock_guard lock(m_impl->portMutex);
    boost::system::error_code error;
    m_impl->port.cancel(error);
    if (error)
        setErrorStatus(true);
    if (m_impl->port.is_open())
        UnlockPort(m_impl->port.native_handle());
    m_impl->port.close(error);
    if (error)
        setErrorStatus(true);
}

CallbackAsyncSerial::~CallbackAsyncSerial() {
    clearReadCallback();
}

void CallbackAsyncSerial::setCallback(const ReadCallback& callback) {
    setReadCallback(callback);
}

void CallbackAsyncSerial::clearCallback() {
    clearReadCallback();
}
