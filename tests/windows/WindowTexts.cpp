// Prints the texts of the window in front, one line each: its title, then those of its controls. Line ends
// within a text are printed as "\n".
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

std::wstring TextOf(HWND window) {
    // Only messages bring the text of another program's control.
    const auto length = static_cast<size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
    std::wstring text(length + 1, L'\0');
    const LRESULT copied =
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(copied));
    return text;
}

std::string InUtf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(4 * text.size(), '\0');
    bytes.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                                         static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

void Print(HWND window) {
    std::string line;
    for (const char c : InUtf8(TextOf(window)))
        if (c == '\n')
            line += "\\n";
        else if (c != '\r')
            line += c;
    if (!line.empty())
        std::printf("%s\n", line.c_str());
}

BOOL CALLBACK PrintControl(HWND control, LPARAM) {
    if (IsWindowVisible(control))
        Print(control);
    return TRUE;
}

} // namespace

int main() {
    HWND window = GetForegroundWindow();
    if (!window)
        return 1;
    Print(window);
    EnumChildWindows(window, PrintControl, 0);
    return 0;
}
