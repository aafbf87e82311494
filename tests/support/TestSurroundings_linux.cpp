#include "robot/Files.h"
#include "robot/Process.h"
#include "tests/support/TestSurroundings.h"

#include <cstdlib>
#include <string>

namespace testbench {

bool HasDisplay() {
    return std::getenv("DISPLAY") != nullptr;
}

void KeepUsersFilesOut(const std::filesystem::path& home) {
    const auto set = [](const char* name, const std::string& value) { setenv(name, value.c_str(), 1); };
    set("HOME", home);
    set("XDG_CONFIG_HOME", home / "config");
    set("XDG_DATA_HOME", home / "data");
    set("XDG_CACHE_HOME", home / "cache");
    set("GSETTINGS_BACKEND", "memory");
    set("GDK_BACKEND", "x11");
    // The toolkit talks to screen readers only in tests that bring one, on a session bus of their own.
    if (std::getenv("ZELK_TEST_READER") != nullptr) {
        unsetenv("NO_AT_BRIDGE");
    } else {
        set("NO_AT_BRIDGE", "1");
    }
    set("LC_ALL", "C.UTF-8");
    for (const char* folder : {"config/gtk-3.0", "data", "cache"}) {
        std::filesystem::create_directories(home / folder);
    }
    // With any other print backend, a print job without a dialog never ends.
    WriteFile(home / "config/gtk-3.0/settings.ini", "[Settings]\n"
                                                    "gtk-print-backends=file\n"
                                                    "gtk-enable-animations=0\n"
                                                    "gtk-cursor-blink=0\n");
}

void EndChildren() {
    Process::KillAll();
}

} // namespace testbench
