#include "robot/Desk.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string_view>

// Include last: these headers define macros with common names.
#include <windows.h>

namespace testbench {

namespace {

/// Keys that the system tells from those of the number pad by a mark of their own.
bool IsExtended(WORD key) {
    static constexpr std::array extended = {
        VK_INSERT, VK_DELETE, VK_HOME, VK_END,  VK_PRIOR, VK_NEXT,    VK_LEFT,
        VK_RIGHT,  VK_UP,     VK_DOWN, VK_APPS, VK_LWIN,  VK_NUMLOCK,
    };
    return std::find(extended.begin(), extended.end(), key) != extended.end();
}

/// A mark above the codes of the system: the key of the number pad, or another one of two with the same code.
constexpr unsigned ExtendedMark = 0x100;

unsigned KeyOfName(const std::string& name) {
    static const std::map<std::string, unsigned> keys = {
        {"Alt_L", VK_MENU},
        {"BackSpace", VK_BACK},
        {"Control_L", VK_CONTROL},
        {"Delete", VK_DELETE},
        {"Down", VK_DOWN},
        {"End", VK_END},
        {"Escape", VK_ESCAPE},
        {"Home", VK_HOME},
        {"Insert", VK_INSERT},
        // Named as without Num Lock; the system has codes of their own for them with Num Lock.
        {"KP_Begin", VK_NUMPAD5},
        {"KP_Delete", VK_DECIMAL},
        {"KP_Down", VK_NUMPAD2},
        {"KP_End", VK_NUMPAD1},
        {"KP_Enter", VK_RETURN | ExtendedMark},
        {"KP_Home", VK_NUMPAD7},
        {"KP_Prior", VK_NUMPAD9},
        {"KP_Subtract", VK_SUBTRACT},
        {"Left", VK_LEFT},
        {"Menu", VK_APPS},
        {"Next", VK_NEXT},
        {"Num_Lock", VK_NUMLOCK},
        {"Page_Down", VK_NEXT},
        {"Page_Up", VK_PRIOR},
        {"Prior", VK_PRIOR},
        {"Return", VK_RETURN},
        {"Right", VK_RIGHT},
        {"Shift_L", VK_SHIFT},
        {"Super_L", VK_LWIN},
        {"Tab", VK_TAB},
        {"Up", VK_UP},
        {"space", VK_SPACE},
    };
    const auto found = keys.find(name);
    if (found != keys.end())
        return found->second;
    int number = 0;
    const char* const end = name.data() + name.size();
    const bool isNumber = name.starts_with('F') && std::from_chars(name.data() + 1, end, number).ptr == end;
    return isNumber && number >= 1 && number <= 12 ? static_cast<unsigned>(VK_F1 + number - 1) : 0u;
}

/// The character of a key with an X name, or 0.
char CharacterOfName(const std::string& name) {
    static const std::map<std::string, char> characters = {
        {"asciitilde", '~'}, {"braceleft", '{'}, {"comma", ','}, {"minus", '-'},
        {"period", '.'},     {"plus", '+'},      {"slash", '/'}};
    const auto found = characters.find(name);
    return found == characters.end() ? '\0' : found->second;
}

/// The character that the key types, with Shift or without; 0 if none.
wchar_t CharacterOfKey(UINT key, bool shift) {
    BYTE state[256] = {};
    state[VK_SHIFT] = shift ? 0x80 : 0;
    wchar_t text[8] = L"";
    return ToUnicode(key, MapVirtualKeyW(key, MAPVK_VK_TO_VSC), state, text,
                     static_cast<int>(std::size(text)), 0) == 1
               ? text[0]
               : L'\0';
}

void Send(INPUT input) {
    if (SendInput(1, &input, sizeof input) != 1)
        throw std::runtime_error("the system takes no input");
}

/// The value that the system turns into this position of a screen of this size: it cuts the fraction off.
LONG InputPlace(int place, int size) {
    return static_cast<LONG>((static_cast<long long>(place) * 65536 + size - 1) / size);
}

/// A screen's or a memory's device context, as long as the object lives.
class Context {
public:
    explicit Context(HDC screen) : m_context(screen), m_isScreen(true) {}
    static Context InMemory() { return {CreateCompatibleDC(nullptr), false}; }
    ~Context() {
        m_isScreen ? static_cast<void>(ReleaseDC(nullptr, m_context))
                   : static_cast<void>(DeleteDC(m_context));
    }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    HDC Get() const { return m_context; }

private:
    Context(HDC context, bool isScreen) : m_context(context), m_isScreen(isScreen) {}

    HDC m_context;
    bool m_isScreen;
};

} // namespace

/// The system knows the desktop by itself.
class Desk::Connection {};

Desk::Desk() = default;

Desk::~Desk() = default;

void Desk::Key(unsigned code, bool down) {
    const auto key = static_cast<WORD>(code & ~ExtendedMark);
    const bool isExtended = (code & ExtendedMark) != 0 || IsExtended(key);
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (down ? 0u : KEYEVENTF_KEYUP) | (isExtended ? KEYEVENTF_EXTENDEDKEY : 0u);
    Send(input);
}

void Desk::Button(unsigned button, bool down) {
    static constexpr DWORD presses[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_RIGHTDOWN};
    static constexpr DWORD releases[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_MIDDLEUP, MOUSEEVENTF_RIGHTUP};
    INPUT input{};
    input.type = INPUT_MOUSE;
    if (button >= 1 && button <= 3) {
        input.mi.dwFlags = (down ? presses : releases)[button - 1];
    } else {
        // A step of the wheel has no release.
        if (!down)
            return;
        input.mi.dwFlags = MOUSEEVENTF_WHEEL;
        input.mi.mouseData = static_cast<DWORD>(button == 4 ? WHEEL_DELTA : -WHEEL_DELTA);
    }
    Send(input);
}

void Desk::DoubleClick(unsigned button) {
    for (const bool down : {true, false, true, false})
        Button(button, down);
}

void Desk::Pointer(const wxPoint& screen) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = InputPlace(screen.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = InputPlace(screen.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    Send(input);
}

Desk::KeySpot Desk::FindKey(char character) const {
    // Not VkKeyScan: it prefers keys that only some keyboards have.
    for (const bool shift : {false, true})
        for (UINT key = VK_SPACE; key <= VK_OEM_102; ++key)
            if (CharacterOfKey(key, shift) == static_cast<wchar_t>(character))
                return {key, shift};
    return {};
}

Desk::KeySpot Desk::FindKey(const std::string& name) const {
    const char character = CharacterOfName(name);
    return character != '\0' ? FindKey(character) : KeySpot{KeyOfName(name), false};
}

std::string Desk::FocusedTitle() const {
    const HWND window = GetForegroundWindow();
    wchar_t text[512] = L"";
    // Asks no thread: that of the window may be busy.
    if (window == nullptr || InternalGetWindowText(window, text, static_cast<int>(std::size(text))) <= 0)
        return {};
    return wxString(text).utf8_string();
}

bool Desk::FocusIsDialog() const {
    const HWND window = GetForegroundWindow();
    wchar_t name[64] = L"";
    return window != nullptr && GetClassNameW(window, name, static_cast<int>(std::size(name))) > 0 &&
           std::wstring_view(name) == L"#32770";
}

wxRect Desk::FocusedArea() const {
    const HWND window = GetForegroundWindow();
    RECT area{};
    if (window == nullptr || !GetWindowRect(window, &area))
        return {};
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right - area.left),
            static_cast<int>(area.bottom - area.top)};
}

wxImage Desk::Picture(const wxRect& part) const {
    wxRect rect(0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    if (!part.IsEmpty())
        rect.Intersect(part);
    if (rect.IsEmpty())
        throw std::runtime_error("the screen gave no picture");
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = rect.width;
    info.bmiHeader.biHeight = -rect.height; // the first row is the highest
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    const Context screen(GetDC(nullptr)), memory = Context::InMemory();
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr)
        throw std::runtime_error("no memory for a picture of the screen");
    const HGDIOBJ former = SelectObject(memory.Get(), bitmap);
    const bool isTaken =
        BitBlt(memory.Get(), 0, 0, rect.width, rect.height, screen.Get(), rect.x, rect.y, SRCCOPY) != 0;
    GdiFlush();
    wxImage picture(rect.width, rect.height, false);
    unsigned char* to = picture.GetData();
    const auto* from = static_cast<const unsigned char*>(bits);
    for (int pixel = 0; pixel < rect.width * rect.height; ++pixel, from += 4) {
        // Blue comes first there.
        *to++ = from[2];
        *to++ = from[1];
        *to++ = from[0];
    }
    SelectObject(memory.Get(), former);
    DeleteObject(bitmap);
    if (!isTaken)
        throw std::runtime_error("the screen gave no picture");
    return picture;
}

} // namespace testbench
