// Serial port for the transfer code: text output, and text input by polling.
#include "transfer/wxAsyncSerial.h"

#include "transfer/ArrivalCount.h"
#include "transfer/AsyncSerial.h"

#include <boost/system/system_error.hpp>
#include <wx/strconv.h>

#include <algorithm>
#include <optional>
#include <string>
#include <thread>

wxString SerialRxBuffer;
wxMutex SerialRxMutex;

struct wxAsyncSerialImpl {
    CallbackAsyncSerial port;
    wxString text; // emptied by close, not used otherwise
};

namespace {

// For WaitForData. Changed only under SerialRxMutex, so that a look at the buffer and the count belong
// together.
wxChar awaited = 0;
ArrivalCount arrivals; // of the awaited character

bool IsAwaited(unsigned character) {
    constexpr unsigned withoutParity = 0x7F;
    return (character & withoutParity) == static_cast<unsigned>(awaited);
}

/// Returns the count of arrivals before the character comes, or nothing if it is there.
std::optional<unsigned> ArrivalsBefore(wxChar character) {
    const wxMutexLocker lock(SerialRxMutex);
    awaited = character;
    if (std::any_of(SerialRxBuffer.begin(), SerialRxBuffer.end(),
                    [](wxUniChar each) { return IsAwaited(each.GetValue()); }))
        return {};
    return arrivals.Value();
}

std::string LibcBytes(const wxString& text) {
    const wxCharBuffer bytes = text.mb_str(wxConvLibc);
    return bytes.data() ? std::string(bytes.data(), bytes.length()) : std::string();
}

} // namespace

wxAsyncSerial::wxAsyncSerial(wxWindow* parent)
    : m_impl(std::make_shared<wxAsyncSerialImpl>()), m_parent(parent) {}

wxAsyncSerial::wxAsyncSerial(wxWindow* parent, const wxString& deviceName, unsigned int baudRate)
    : wxAsyncSerial(parent) {
    open(deviceName, baudRate);
}

wxAsyncSerial::~wxAsyncSerial() {
    try {
        close();
    } catch (...) {
        // Destructors must not throw.
    }
}

void wxAsyncSerial::open(const wxString& deviceName, unsigned int baudRate) {
    try {
        m_impl->port.open(LibcBytes(deviceName), baudRate);
    } catch (const boost::system::system_error&) {
        // isOpen() reports the failure.
    }
    m_impl->port.setCallback([this](const char* data, size_t length) { readCallback(data, length); });
    const wxMutexLocker lock(SerialRxMutex);
    SerialRxBuffer.clear();
}

void wxAsyncSerial::setBaudRate(unsigned int baudRate) {
    try {
        m_impl->port.setBaudRate(baudRate);
    } catch (const boost::system::system_error&) {
        // A device removed during a transfer looks like a radio that doesn't answer.
    }
}

bool wxAsyncSerial::isOpen() const {
    return m_impl->port.isOpen();
}

bool wxAsyncSerial::errorStatus() const {
    return m_impl->port.errorStatus();
}

void wxAsyncSerial::write(const wxString& text) {
    m_impl->port.writeString(LibcBytes(text));
}

bool wxAsyncSerial::waitUntilWritten(int limitMs) {
    return m_impl->port.waitUntilWritten(std::chrono::milliseconds(limitMs));
}

void wxAsyncSerial::close() {
    m_impl->port.clearCallback();
    try {
        m_impl->port.close();
    } catch (const boost::system::system_error&) {
        // The port is closed nevertheless.
    }
    m_impl->text.clear();
}

wxString wxAsyncSerial::GetData() {
    const wxMutexLocker lock(SerialRxMutex);
    const wxString data = SerialRxBuffer;
    SerialRxBuffer.clear();
    return data;
}

bool wxAsyncSerial::WaitForData(std::chrono::steady_clock::time_point end, wxChar lineEnd) {
    const auto before = ArrivalsBefore(lineEnd);
    return !before || arrivals.AwaitChange(*before, end);
}

bool wxAsyncSerial::WatchForData(std::chrono::steady_clock::time_point end, wxChar lineEnd) {
    const auto before = ArrivalsBefore(lineEnd);
    while (before && arrivals.Value() == *before) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::yield(); // the port's thread may wait for this processor
    }
    return true;
}

void wxAsyncSerial::readCallback(const char* data, size_t length) {
    bool hasCome = false;
    {
        const wxMutexLocker lock(SerialRxMutex);
        SerialRxBuffer.append(wxString(data, wxConvISO8859_1, length));
        hasCome = std::any_of(data, data + length, [](char character) {
            return IsAwaited(static_cast<unsigned char>(character));
        });
        if (hasCome)
            arrivals.Raise();
    }
    if (hasCome)
        arrivals.Wake();
}
