#include "tests/support/TestSurroundings.h"

#include <windows.h>

#include <stdexcept>
#include <string>

namespace testbench {

bool HasDisplay() {
    // Wine starts its desktop with the first window, and a busy machine takes longer for that than Wine
    // waits.
    for (int tries = 0; tries < 20; ++tries) {
        const HWND window =
            CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
        if (window != nullptr) {
            // Over a tool it would show the tool's help in the status bar. A window of the program opens a
            // little further from the corner than the one before.
            SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, 0);
            return DestroyWindow(window) != 0;
        }
        Sleep(500);
    }
    return false;
}

void KeepUsersFilesOut(const std::filesystem::path& home) {
    // The program's own folders and settings bear the name of the test program. What the system keeps of a
    // user it finds by these.
    const auto set = [](const wchar_t* name, const std::filesystem::path& value) {
        if (!SetEnvironmentVariableW(name, value.c_str()))
            throw std::runtime_error("the environment takes no values");
    };
    set(L"APPDATA", home / "roaming");
    set(L"LOCALAPPDATA", home / "local");
    for (const char* folder : {"roaming", "local"})
        std::filesystem::create_directories(home / folder);
}

/// The system ends them with this one: see tests/frame/StartedProgram_windows.cpp.
void EndChildren() {}

} // namespace testbench
