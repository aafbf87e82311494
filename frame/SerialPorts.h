// The serial ports that can be opened now.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Names of the serial ports that can be opened at this moment, as `wxAsyncSerial::open` takes them. Excludes
/// ports that are in use elsewhere or that the user may not open. Leaves no port locked.
wxArrayString ListSerialPorts();

/// Hint for the user about ports that are missing from the list because of their access rights; empty on
/// systems without such rights.
wxString SerialPortGroupHint();

namespace serialports {

/// File name patterns of serial devices on systems without COM names. "/dev" is a placeholder for the device
/// folder.
inline constexpr std::string_view DevicePatterns[] = {
    "/dev/ttyS*", "/dev/tts/*", "/dev/ttyUSB*", "/dev/ttyACM*", "/dev/ttyXRUSB*", "/dev/usb/tts/*",
};

/// Folders to search for ports.
struct Folders {
    std::string devices = "/dev"; ///< folder of the patterns; its "serial/by-id" holds the stable names
    std::string links;            ///< folder of links that the user keeps, empty for none
};

/// One name under which a port was found.
struct FoundPort {
    std::string name;
    unsigned long device = 0; ///< the same for all names of one device
    bool stable = false;      ///< whether the name stays the same when the device is plugged in elsewhere
};

/// Natural order: a run of digits counts as a number, so that "ttyUSB2" is before "ttyUSB10".
bool NaturalLess(std::string_view a, std::string_view b);

/// One name for each device, the stable one if it has any, in natural order.
std::vector<std::string> OneNamePerDevice(std::vector<FoundPort> ports);

/// Whether a node has hardware. Most nodes "ttyS0", "ttyS1" ... have none, which shows in their chip type.
/// Other devices may have no chip type and count in any case.
///
/// @param nodeName the device's own name, without folders
/// @param chipType chip type that the driver reports, 0 for unknown; nothing if the driver doesn't answer
bool HasHardware(std::string_view nodeName, std::optional<int> chipType);

/// As ListSerialPorts, for other folders. Not on Windows.
std::vector<std::string> ListPorts(const Folders& folders);

/// Name of the group that may open serial ports: the group of the first device that exists and is barred to
/// this user, else of the first device, else "dialout". Not on Windows.
std::string PortGroup(const Folders& folders);

} // namespace serialports
