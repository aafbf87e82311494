// Serial port for the transfer code: text output, and text input by polling.
#pragma once

#include "transfer/TransferLine.h"

#include <wx/object.h>
#include <wx/string.h>
#include <wx/thread.h>

#include <chrono>
#include <cstddef>
#include <memory>

class wxWindow;
struct wxAsyncSerialImpl;

/// Text received but not yet taken, one character per byte, with the byte's value. The program has only one
/// such buffer, so only one port may be open at a time.
extern wxString SerialRxBuffer;
/// Guards SerialRxBuffer. No one takes another lock while holding it.
extern wxMutex SerialRxMutex;

/// A serial port with 8 data bits, no parity, one stop bit and no flow control. Device failures throw no
/// exceptions: a failed port simply delivers no more text.
///
/// Used from the main thread only; text that arrives meanwhile is collected in SerialRxBuffer.
class wxAsyncSerial : public wxObject, public TransferLine {
public:
    /// Leaves the port closed. `parent` may be null.
    explicit wxAsyncSerial(wxWindow* parent);

    /// Opens the port at once, as open() does.
    wxAsyncSerial(wxWindow* parent, const wxString& deviceName, unsigned int baudRate);

    wxAsyncSerial(const wxAsyncSerial&) = delete;
    wxAsyncSerial& operator=(const wxAsyncSerial&) = delete;

    /// Closes an open port.
    ~wxAsyncSerial() override;

    /// Opens the device for exclusive use, closing an open one first, and empties SerialRxBuffer. isOpen()
    /// reports success: a missing or busy device leaves the port closed.
    void open(const wxString& deviceName, unsigned int baudRate) override;

    /// Changes the speed of the open port at once. Does nothing if the port is closed or has failed, or if
    /// the device doesn't support the speed.
    void setBaudRate(unsigned int baudRate) override;

    /// True from a successful open() until close(), even if the device has failed or disappeared meanwhile.
    bool isOpen() const override;

    /// True if the last open() failed, or the device has failed since.
    bool errorStatus() const override;

    /// Queues a text for sending, in the C library's encoding, and returns at once. Sends nothing of a text
    /// that the encoding can't express. A closed port drops the text.
    void write(const wxString& text) override;

    /// Waits up to limitMs milliseconds until all written text has been handed to the device. Doesn't wait on
    /// a port that is closed or has failed. Returns true if nothing is left to send.
    bool waitUntilWritten(int limitMs) override;

    /// Closes the port; does nothing on a closed one. No text arrives afterwards.
    void close() override;

    /// Same as GetData.
    wxString takeReceived() override { return GetData(); }

    /// Returns the text received since the last call, empty if there is none. Never waits for data.
    static wxString GetData();

    /// Waits until there is text to take with the character `lineEnd`, or until `end`. A byte is compared
    /// without its highest bit, which a radio may use for parity. The port's thread ends the wait as soon as
    /// it has delivered the character, not at each piece of a line. Returns true if it has come.
    static bool WaitForData(std::chrono::steady_clock::time_point end, wxChar lineEnd);

    /// Same as WaitForData, but doesn't sleep, so that it returns sooner after the character has come. Takes
    /// all of a processor meanwhile.
    static bool WatchForData(std::chrono::steady_clock::time_point end, wxChar lineEnd);

private:
    void readCallback(const char* data, size_t length);

    wxString m_text; // never filled
    std::shared_ptr<wxAsyncSerialImpl> m_impl;
    [[maybe_unused]] wxWindow* m_parent; // kept for the owner, not used
};
