// The serial ports that can be opened now, on Windows.
#include "frame/ComNumbers.h"
#include "frame/SerialPorts.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/serial_port.hpp>
#include <boost/system/error_code.hpp>

#include <windows.h>

#include <array>
#include <utility> // boost/asio 1.74 uses std::exchange without this include

namespace {

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

/// The names of all ports whose drivers are running. The system keeps them as values of a key, each under the
/// name of its device.
std::vector<std::wstring> NamesOfTheSystem() {
    std::vector<std::wstring> names;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_READ, &key) !=
        ERROR_SUCCESS)
        return names;
    for (DWORD index = 0;; ++index) {
        std::array<wchar_t, 256> device{};
        std::array<wchar_t, 64> port{};
        DWORD deviceLength = device.size();
        DWORD bytes = sizeof port - sizeof(wchar_t); // the system may leave out the final zero
        DWORD type = REG_NONE;
        const LSTATUS status = RegEnumValueW(key, index, device.data(), &deviceLength, nullptr, &type,
                                             reinterpret_cast<BYTE*>(port.data()), &bytes);
        if (status == ERROR_SUCCESS && type == REG_SZ)
            names.emplace_back(port.data());
        else if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA)
            break;
    }
    RegCloseKey(key);
    return names;
}

} // namespace

wxArrayString ListSerialPorts() {
    wxArrayString list;
    const auto addIfFree = [&list](int number) {
        if (const std::string name = serialports::ComDeviceName(number); CanBeOpened(name))
            list.Add(name);
    };
    for (int number = 1; number <= serialports::HighestAskedPort; ++number)
        if (IsSerialPort(number))
            addIfFree(number);
    // USB adapters get a new number at each socket, and desks with many have reached these.
    for (const int number : serialports::FurtherPorts(NamesOfTheSystem()))
        addIfFree(number);
    return list;
}

wxString SerialPortGroupHint() {
    return wxString();
}
