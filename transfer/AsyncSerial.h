// Full-duplex asynchronous serial port with a background thread, a write queue and a read callback.
#pragma once

#include <boost/asio/serial_port_base.hpp>
#include <boost/system/error_code.hpp>

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility> // boost/asio 1.74 uses std::exchange without including it
#include <vector>

struct AsyncSerialImpl;

/// A serial port whose writes and reads never block the caller: a write is appended to a queue, and received
/// data is passed to a function on the port's own thread. The thread lives only while the port is open.
///
/// All public functions must be called from one thread, the owner's.
class AsyncSerial {
public:
    /// Receives the bytes of one read, valid only during the call, and their count, 1 to 512. Runs on the
    /// port's thread and must not set or clear the callback itself.
    using ReadCallback = std::function<void(const char*, size_t)>;

    /// Leaves the port closed.
    AsyncSerial();

    /// Opens the port at once; arguments and failures as for open().
    AsyncSerial(const std::string& deviceName, unsigned int baudRate,
                boost::asio::serial_port_base::parity parity,
                boost::asio::serial_port_base::character_size characterSize,
                boost::asio::serial_port_base::flow_control flowControl,
                boost::asio::serial_port_base::stop_bits stopBits);

    AsyncSerial(const AsyncSerial&) = delete;
    AsyncSerial& operator=(const AsyncSerial&) = delete;

    /// Closes an open port and ignores exceptions of the close.
    virtual ~AsyncSerial() = 0;

    /// Opens the device for exclusive use and starts the port's thread. An open port is closed first.
    ///
    /// @param deviceName system name of the device, such as "/dev/ttyUSB0" or "COM3"
    /// @param baudRate   speed in baud; the device must support it
    /// @throws boost::system::system_error of the step that failed, also when another program or another
    ///         object holds the device. The port is then closed and errorStatus() is true.
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

    /// True from a successful open() until close(), even if the device has failed or disappeared meanwhile.
    bool isOpen() const;

    /// True if the last open() failed, or the device has failed since.
    bool errorStatus() const;

    /// Stops the port's thread and closes the device. Does nothing on a closed port. Drops queued bytes; call
    /// waitUntilWritten() first to have them sent.
    ///
    /// @throws boost::system::system_error whose text begins "Error while closing the device" if the device
    ///         failed before or during the close; the port is closed nevertheless.
    void close();

    /// Changes the speed of the open port at once, even during a transfer.
    ///
    /// @throws boost::system::system_error if the port is closed or gone, or doesn't support the speed
    void setBaudRate(unsigned int baudRate);

    /// Queues bytes for sending and returns at once. Bytes are sent in the order in which they were queued. A
    /// closed port drops them.
    void write(const char* data, size_t size);
    /// \overload
    void write(const std::vector<char>& data);
    /// Queues the bytes of a text for sending, including zeros.
    void writeString(const std::string& text);

    /// Waits up to limit until all queued bytes have been handed to the device. Returns at once if there are
    /// none, and on a port that is closed or has failed.
    ///
    /// @return true if nothing is left to send
    bool waitUntilWritten(std::chrono::milliseconds limit);

protected:
    void setErrorStatus(bool error);

    /// Sets the function that receives all data read from now on; without one, data is dropped.
    void setReadCallback(const ReadCallback& callback);

    /// Removes the callback. It no longer runs once this has returned.
    void clearReadCallback();

private:
    // Completion handlers, run on the port's thread.
    void doRead();
    void readEnd(const boost::system::error_code& error, size_t bytesTransferred);
    size_t writeAtOnce(const char* data, size_t size);
    void doWrite();
    void startWrite();
    void writeEnd(const boost::system::error_code& error);
    void fail();
    void doClose();

    void dropPendingWork();

    std::shared_ptr<AsyncSerialImpl> m_impl;
};

/// An AsyncSerial whose owner sets the function for received data.
class CallbackAsyncSerial : public AsyncSerial {
public:
    using AsyncSerial::AsyncSerial;

    /// Clears the callback first, so that it can't run during destruction.
    ~CallbackAsyncSerial() override;

    /// See AsyncSerial::setReadCallback.
    void setCallback(const ReadCallback& callback);
    /// See AsyncSerial::clearReadCallback.
    void clearCallback();
};
