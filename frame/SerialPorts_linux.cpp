// The serial ports that can be opened now, on Linux.
#include "frame/SerialPorts.h"

#include <wx/stdpaths.h>
#include <wx/strconv.h>

#include <fcntl.h>
#include <fnmatch.h>
#include <grp.h>
#include <linux/serial.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>

namespace serialports {

namespace {

namespace fs = std::filesystem;

std::optional<struct stat> DeviceOf(const std::string& name) {
    struct stat facts {};
    if (stat(name.c_str(), &facts) != 0 || !S_ISCHR(facts.st_mode))
        return std::nullopt;
    return facts;
}

std::vector<std::string> NamesIn(const std::string& folder, const std::string& pattern) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename();
        if (fnmatch(pattern.c_str(), name.c_str(), FNM_PERIOD) == 0)
            names.push_back(entry->path());
    }
    std::sort(names.begin(), names.end(), NaturalLess);
    return names;
}

std::vector<std::string> PatternNames(const Folders& folders) {
    std::vector<std::string> names;
    for (const std::string_view pattern : DevicePatterns) {
        const fs::path path = folders.devices + std::string(pattern.substr(4)); // after "/dev"
        const auto found = NamesIn(path.parent_path(), path.filename());
        names.insert(names.end(), found.begin(), found.end());
    }
    return names;
}

std::optional<int> ChipType(int descriptor) {
    serial_struct facts{};
    if (ioctl(descriptor, TIOCGSERIAL, &facts) != 0)
        return std::nullopt;
    return facts.type;
}

// Does not change the device's settings, and holds its lock only for a moment.
bool CanBeOpened(const std::string& name) {
    const int descriptor = open(name.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    std::error_code error;
    const std::string node = fs::canonical(name, error).filename();
    termios settings{};
    const bool good = tcgetattr(descriptor, &settings) == 0 && HasHardware(node, ChipType(descriptor)) &&
                      flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    close(descriptor); // also releases the lock
    return good;
}

void AddPorts(std::vector<FoundPort>& ports, const std::vector<std::string>& names, bool stable) {
    for (const std::string& name : names) {
        if (const auto facts = DeviceOf(name))
            ports.push_back({name, facts->st_rdev, stable});
    }
}

size_t DigitsAt(std::string_view text, size_t at) {
    size_t end = at;
    while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end])))
        ++end;
    return end - at;
}

std::string_view WithoutZeros(std::string_view digits) {
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

Folders SystemFolders() {
    const wxString links = wxStandardPaths::Get().GetUserDataDir() + "/ports";
    return {"/dev", links.ToStdString(wxConvLibc)};
}

} // namespace

bool NaturalLess(std::string_view a, std::string_view b) {
    size_t i = 0;
    size_t j = 0;
    while (i < a.size() && j < b.size()) {
        const size_t inA = DigitsAt(a, i);
        const size_t inB = DigitsAt(b, j);
        if (inA > 0 && inB > 0) {
            const auto x = WithoutZeros(a.substr(i, inA));
            const auto y = WithoutZeros(b.substr(j, inB));
            if (x.size() != y.size())
                return x.size() < y.size();
            if (x != y)
                return x < y;
            i += inA;
            j += inB;
        } else {
            if (a[i] != b[j])
                return a[i] < b[j];
            ++i;
            ++j;
        }
    }
    if (i < a.size() || j < b.size())
        return j < b.size();
    return a < b; // equal except for leading zeros
}

std::vector<std::string> OneNamePerDevice(std::vector<FoundPort> ports) {
    std::sort(ports.begin(), ports.end(), [](const FoundPort& a, const FoundPort& b) {
        return a.stable != b.stable ? a.stable : NaturalLess(a.name, b.name);
    });
    std::map<unsigned long, std::string> names;
    for (const FoundPort& port : ports)
        names.try_emplace(port.device, port.name);
    std::vector<std::string> list;
    list.reserve(names.size());
    for (const auto& [device, name] : names)
        list.push_back(name);
    std::sort(list.begin(), list.end(), NaturalLess);
    return list;
}

bool HasHardware(std::string_view nodeName, std::optional<int> chipType) {
    const bool boardPort = nodeName.substr(0, 4) == "ttyS" && DigitsAt(nodeName, 4) > 0;
    return !boardPort || chipType.value_or(PORT_UNKNOWN) != PORT_UNKNOWN;
}

std::vector<std::string> ListPorts(const Folders& folders) {
    std::vector<FoundPort> ports;
    AddPorts(ports, PatternNames(folders), false);
    AddPorts(ports, NamesIn(folders.devices + "/serial/by-id", "*"), true);
    if (!folders.links.empty())
        AddPorts(ports, NamesIn(folders.links, "*"), true);
    // Open last, so that each device is opened only once, under the name that is offered.
    std::vector<std::string> names = OneNamePerDevice(std::move(ports));
    std::erase_if(names, [](const std::string& name) { return !CanBeOpened(name); });
    return names;
}

std::string PortGroup(const Folders& folders) {
    std::optional<gid_t> id;
    for (const std::string& name : PatternNames(folders)) {
        const auto facts = DeviceOf(name);
        if (!facts)
            continue;
        const bool barred = faccessat(AT_FDCWD, name.c_str(), R_OK | W_OK, AT_EACCESS) != 0;
        if (barred || !id)
            id = facts->st_gid;
        if (barred)
            break;
    }
    const group* owner = id ? getgrgid(*id) : nullptr;
    return owner ? owner->gr_name : "dialout";
}

} // namespace serialports

wxArrayString ListSerialPorts() {
    wxArrayString list;
    for (const std::string& name : serialports::ListPorts(serialports::SystemFolders())) {
        // Opening a port uses the same conversion, so a name that it can't read could not be opened.
        if (const wxString text(name.c_str(), wxConvLibc); !text.empty())
            list.Add(text);
    }
    return list;
}

wxString SerialPortGroupHint() {
    return wxString::Format("A port that you may not open is not listed. Serial ports belong to the group "
                            "\"%s\": ask for membership and log in again.",
                            serialports::PortGroup(serialports::SystemFolders()));
}
