// Full-duplex asynchronous serial port with a background thread, a write queue and a read callback.
#pragma once

#include <utility> // boost/asio of 1.74 takes std::exchange for granted

#include <boost/asio/serial_port_base.hpp>
#include <boost/system/error_code.hpp>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct AsyncSerialImpl;

/// A serial port that never makes its caller wait: a write is a queue append, and what arrives is handed to
/// a function on the port's own thread. The thread lives only while the port is open.
///
/// All public operations belong to one thread, that of the owner.
class AsyncSerial {
public:
    /// Receives what one read brought: the bytes, valid only during the call, and their count, 1 to 512.
    /// Runs on the port's thread, and must not set or clear the callback itself.
    using ReadCallback = std::function<void(const char*, std::size_t)>;

    /// Leaves the port closed.
    AsyncSerial();

    /// Opens the port at once; arguments and failures are those of open().
    AsyncSerial(const std::string& deviceName, unsigned int baudRate,
                boost::asio::serial_port_base::parity parity,
                boost::asio::serial_port_base::character_size characterSize,
                boost::asio::serial_port_base::flow_control flowControl,
                boost::asio::serial_port_base::stop_bits stopBits);

    AsyncSerial(const AsyncSerial&) = delete;
    AsyncSerial& operator=(const AsyncSerial&) = delete;

    /// Closes an open port and swallows whatever that close throws.
    virtual ~AsyncSerial() = 0;

    /// Opens the device for this object alone and starts the port's thread. An open port is closed first.
    ///
    /// @param deviceName name that the system knows the device by, such as "/dev/ttyUSB0" or "COM3"
    /// @param baudRate   speed in baud, one that the device knows
    /// @throws boost::system::system_error of the step that failed, also when another program or another
    ///         object holds the device. The port is then closed and errorStatus() true.
    void
    open(const std::string& deviceName, unsigned int baudRate,
         boost::asio::serial_port_base::parity parity =
             boost::asio::serial_port_base::parity(boost::asio::serial_port_base::parity::none),
         boost::asio::serial_port_base::character_size characterSize =
             boost::asio::serial_port_base::character_size(8),
         boost::asio::serial_port_base::flow_control flowControl =
             boost::asio::serial_port_base::flow_control(boost::asio::serial_port_base::flow_control::none),
         boost::asio::serial_port_base::stop_bits stopBits =
             boost::asio::serial_port_base::stop_bits(boost::asio::serial_port_base::stop_bits::one));

    /// True between a successful open() and close(), also after the device has failed or gone in between.
    bool isOpen() const;

    /// True if the last open() failed, or the device has failed since.
    bool errorStatus() const;

    /// Stops the port's thread and closes the device. Does nothing on a closed port. Bytes that are still
    /// queued are dropped; waitUntilWritten() before it gives them their time.
    ///
    /// @throws boost::system::system_error whose text begins "Error while closing the device", with the
    ///         port closed all the same, if the device had failed before or failed in closing.
    void close();

    /// Changes the speed of the open port at once, in the middle of a transfer too.
    ///
    /// @throws boost::system::system_error if the port is closed, gone, or doesn't know the speed
    void setBaudRate(unsigned int baudRate);

    /// Queues bytes for sending and returns at once. Bytes leave in the order in which they were queued. On a
    /// closed port they are dropped.
    void write(const char* data, std::size_t size);
    /// \overload
    void write(const std::vector<char>& data);
    /// Queues the bytes of a text for sending, zeros included.
    void writeString(const std::string& text);

    /// Waits until all queued bytes have been handed to the device, at most that long. Returns at once if
    /// there are none, and on a port that is closed or has failed.
    ///
    /// @return true if nothing is left to be sent
    bool waitUntilWritten(std::chrono::milliseconds limit);

protected:
    void setErrorStatus(bool error);

    /// Names the function that receives what is read from now on; with none, what arrives is dropped.
    void setReadCallback(const ReadCallback& callback);

    /// Takes the function away. It doesn't run any more once this has returned.
    void clearReadCallback();

private:
    // Completion handlers: they run on the port's thread.
    void doRead();
    void readEnd(const boost::system::error_code& error, std::size_t bytesTransferred);
    void doWrite();
    void startWrite();
    void writeEnd(const boost::system::error_code& error);
    void fail();
    void doClose();

    void dropPendingWork();

    std::shared_ptr<AsyncSerialImpl> m_impl;
};

/// An AsyncSerial whose owner says where received data goes.
class CallbackAsyncSerial : public AsyncSerial {
public:
    using AsyncSerial::AsyncSerial;

    /// Clears the callback first, so that it can't run while its object goes.
    ~CallbackAsyncSerial() override;

    /// See AsyncSerial::setReadCallback.
    void setCallback(const ReadCallback& callback);
    /// See AsyncSerial::clearReadCallback.
    void clearCallback();
};
