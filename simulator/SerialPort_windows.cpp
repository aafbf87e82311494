#include "simulator/Requests_windows.h"
#include "simulator/SerialPort.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace Simulator {

namespace {

constexpr size_t ReadSize = 512;
constexpr DWORD LongestWait = 60'000;
constexpr DWORD LongestWrite = 5'000;

/// "COM5" for "com5" and "COM5:"; empty if the text is no name of a serial port.
std::string ComName(std::string text) {
    if (!text.empty() && text.back() == ':')
        text.pop_back();
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    const bool named = text.size() > 3 && text.size() < 8 && text.starts_with("COM") &&
                       text.find_first_not_of("0123456789", 3) == std::string::npos;
    return named ? text : std::string();
}

std::string WhyNotOpened(DWORD error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return "there is no such port";
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
        return "another program has this port open";
    default:
        return "the port can't be opened (error " + std::to_string(error) + ")";
    }
}

} // namespace

/// A read is always under way. What it has brought is in `arrived` until the radio takes it.
struct SerialPort::System {
    HANDLE device = INVALID_HANDLE_VALUE;
    HANDLE hasRead = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE hasWritten = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    OVERLAPPED reading{};
    char buffer[ReadSize];
    std::string arrived;
    bool underWay = false;

    System() = default;
    System(const System&) = delete;
    System& operator=(const System&) = delete;
    ~System() {
        if (device != INVALID_HANDLE_VALUE) {
            CancelIo(device);
            DWORD got = 0;
            if (underWay)
                GetOverlappedResult(device, &reading, &got, TRUE);
            CloseHandle(device);
        }
        CloseHandle(hasRead);
        CloseHandle(hasWritten);
    }

    /// Returns false if the device has gone.
    bool BeginRead() {
        reading = {};
        reading.hEvent = hasRead;
        // A read that ends at once sets the event, too.
        underWay =
            ReadFile(device, buffer, ReadSize, nullptr, &reading) || GetLastError() == ERROR_IO_PENDING;
        return underWay;
    }

    /// Takes over what the read has brought, and begins the next one. Returns false if the device has gone.
    bool EndRead() {
        if (!underWay)
            return false;
        DWORD got = 0;
        if (!GetOverlappedResult(device, &reading, &got, FALSE)) {
            if (GetLastError() == ERROR_IO_INCOMPLETE)
                return true;
            underWay = false;
            return false;
        }
        arrived.append(buffer, got);
        return BeginRead();
    }

    bool SetLine(int baud) const {
        DCB line{};
        line.DCBlength = sizeof line;
        if (!GetCommState(device, &line))
            return false;
        line.BaudRate = static_cast<DWORD>(baud);
        line.ByteSize = 8;
        line.Parity = NOPARITY;
        line.StopBits = ONESTOPBIT;
        line.fBinary = TRUE;
        line.fParity = line.fOutxCtsFlow = line.fOutxDsrFlow = line.fDsrSensitivity = FALSE;
        line.fOutX = line.fInX = line.fErrorChar = line.fNull = line.fAbortOnError = FALSE;
        line.fDtrControl = DTR_CONTROL_ENABLE;
        line.fRtsControl = RTS_CONTROL_ENABLE;
        return SetCommState(device, &line);
    }
};

SerialPort::SerialPort(const std::string& name)
    : m_name(ComName(name)), m_system(std::make_unique<System>()) {
    if (m_name.empty())
        throw std::runtime_error("\"" + name + "\" is no serial port: their names are COM1, COM2 and so on");
    m_system->device = CreateFileA(("\\\\.\\" + m_name).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                   OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr);
    if (m_system->device == INVALID_HANDLE_VALUE)
        throw std::runtime_error(m_name + ": " + WhyNotOpened(GetLastError()));
    // A read ends as soon as it has any bytes.
    COMMTIMEOUTS timeouts{};
    timeouts.ReadIntervalTimeout = 1;
    timeouts.WriteTotalTimeoutConstant = LongestWrite;
    if (!m_system->SetLine(m_speed) || !SetCommTimeouts(m_system->device, &timeouts))
        throw std::runtime_error(m_name + ": this is no serial port");
    PurgeComm(m_system->device, PURGE_RXCLEAR | PURGE_TXCLEAR);
    if (!m_system->BeginRead())
        throw std::runtime_error(m_name + ": the port can't be read");
}

SerialPort::~SerialPort() = default;

void SerialPort::Wait(Wanted wanted, std::optional<TimePoint> due, const Requests& requests) {
    if (wanted.room || (wanted.input && !m_system->arrived.empty()))
        return;
    DWORD timeout = LongestWait;
    if (due) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*due - Clock::now()).count();
        timeout = static_cast<DWORD>(std::clamp<long long>(left, 0, LongestWait));
    }
    const HANDLE watched[] = {requests.Watched().stop, m_system->hasRead};
    WaitForMultipleObjects(wanted.input ? 2 : 1, watched, FALSE, timeout);
}

std::string SerialPort::Read(size_t limit) {
    if (!m_system->EndRead())
        m_lost = m_name + " has gone";
    const std::string bytes = m_system->arrived.substr(0, limit);
    m_system->arrived.erase(0, bytes.size());
    return bytes;
}

size_t SerialPort::Write(std::string_view bytes) {
    OVERLAPPED writing{};
    writing.hEvent = m_system->hasWritten;
    DWORD put = 0;
    const bool begun =
        WriteFile(m_system->device, bytes.data(), static_cast<DWORD>(bytes.size()), nullptr, &writing) ||
        GetLastError() == ERROR_IO_PENDING;
    if (!begun || !GetOverlappedResult(m_system->device, &writing, &put, TRUE)) {
        m_lost = m_name + " has gone";
        return bytes.size();
    }
    return put;
}

void SerialPort::SetSpeed(int baud) {
    if (baud == m_speed)
        return;
    FlushFileBuffers(m_system->device);
    if (m_system->SetLine(baud))
        m_speed = baud;
}

} // namespace Simulator
