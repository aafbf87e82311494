// The serial port as the transfer code holds it: text out, text in by polling.
#pragma once

#include <cstddef>
#include <memory>
#include <wx/object.h>
#include <wx/string.h>
#include <wx/thread.h>

class wxWindow;
struct wxAsyncSerialImpl;

/// Text received and not yet taken, one character per byte, of the byte's value. There is one such buffer
/// for the whole program, so only one port may be open at a time.
extern wxString SerialRxBuffer;
/// Guards SerialRxBuffer. Nobody takes another lock while holding it.
extern wxMutex SerialRxMutex;

/// A serial port with 8 data bits, no parity, one stop bit and no flow control. No failure of the device
/// comes out of it as an exception: a port that failed simply brings no more text.
///
/// Belongs to the main thread; what arrives meanwhile is collected in SerialRxBuffer.
class wxAsyncSerial : public wxObject {
public:
    /// Leaves the port closed. `parent` may be null.
    explicit wxAsyncSerial(wxWindow* parent);

    /// Opens the port at once, as open() does.
    wxAsyncSerial(wxWindow* parent, const wxString& deviceName, unsigned int baudRate);

    wxAsyncSerial(const wxAsyncSerial&) = delete;
    wxAsyncSerial& operator=(const wxAsyncSerial&) = delete;

    /// Closes an open port.
    ~wxAsyncSerial() override;

    /// Opens the device for this object alone, closing first what it had open, and empties SerialRxBuffer.
    /// Whether it went well is told by isOpen(): a device that is missing or in use leaves the port closed.
    void open(const wxString& deviceName, unsigned int baudRate);

    /// Changes the speed of the open port at once. On a closed port, on one that has failed, and for a speed
    /// that the device doesn't know, nothing happens.
    void setBaudRate(unsigned int baudRate);

    /// True between a successful open() and close(), also after the device has failed or gone in between.
    bool isOpen() const;

    /// True if the last open() failed, or the device has failed since.
    bool errorStatus() const;

    /// Queues a text for sending and returns at once. The bytes are those of the C library's encoding; of
    /// a text that it can't express nothing is sent. On a closed port the text is dropped.
    void write(const wxString& text);

    /// Waits until all that was written has been handed to the device, at most that many milliseconds, and
    /// not at all on a port that is closed or has failed. True if nothing is left to be sent.
    bool waitUntilWritten(int limitMs);

    /// Closes the port; does nothing on a closed one. No text arrives after it.
    void close();

    /// Takes what has been received since the last call: empty if nothing has. Never waits for data.
    static wxString GetData();

private:
    void readCallback(const char* data, std::size_t length);

    wxString m_text; // never filled
    std::shared_ptr<wxAsyncSerialImpl> m_impl;
    [[maybe_unused]] wxWindow* m_parent; // kept for the owner, not used
};
