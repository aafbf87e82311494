// Line between a transfer and a radio.
#pragma once

#include <wx/string.h>

/// A serial line as the drivers need it: wxAsyncSerial, or a simulated one in tests. Failures of the device
/// throw no exceptions; a failed line simply delivers no more text.
class TransferLine {
public:
    virtual ~TransferLine() = default;

    /// Opens the line at once, at a speed in baud. isOpen() reports success.
    virtual void open(const wxString& deviceName, unsigned int baudRate) = 0;

    /// Changes the speed at once.
    virtual void setBaudRate(unsigned int baudRate) = 0;

    /// True from a successful open() until close(), even if the line has failed meanwhile.
    virtual bool isOpen() const = 0;

    /// True if the last open() failed, or the line has failed since.
    virtual bool errorStatus() const = 0;

    /// Queues a text for sending and returns at once.
    virtual void write(const wxString& text) = 0;

    /// Waits up to limitMs milliseconds until all written text has been sent. Returns true if nothing is left
    /// to send.
    virtual bool waitUntilWritten(int limitMs) = 0;

    /// Returns the text received since the last call, one character per byte, empty if there is none. Never
    /// waits.
    virtual wxString takeReceived() = 0;

    /// Closes the line; does nothing on a closed one. No text arrives afterwards.
    virtual void close() = 0;
};
