// The serial ports that can be opened now, on Windows.
#include "frame/SerialPorts.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/serial_port.hpp>
#include <boost/system/error_code.hpp>

#include <windows.h>

#include <utility> // boost/asio 1.74 uses std::exchange without this include

namespace {

constexpr int HighestPort = 29;

// Only the first nine ports open under their short name; the rest need the device name.
std::string DeviceName(int number) {
    return (number > 9 ? "\\\\.\\COM" : "COM") + std::to_string(number);
}

bool IsSerialPort(int number) {
    static_assert(sizeof(COMMCONFIG) == 52);
    COMMCONFIG settings{};
    DWORD size = sizeof settings;
    const std::wstring shortName = L"COM" + std::to_wstring(number);
    return GetDefaultCommConfigW(shortName.c_str(), &settings, &size) != 0 &&
           settings.dwProviderSubType == PST_RS232;
}

bool CanBeOpened(const std::string& deviceName) {
    boost::asio::io_context io;
    boost::asio::serial_port port(io);
    boost::system::error_code error;
    port.open(deviceName, error);
    return port.is_open();
}

} // namespace

wxArrayString ListSerialPorts() {
    wxArrayString list;
    for (int number = 1; number <= HighestPort; ++number) {
        if (const std::string name = DeviceName(number); IsSerialPort(number) && CanBeOpened(name))
            list.Add(name);
    }
    return list;
}

wxString SerialPortGroupHint() {
    return wxString();
}
