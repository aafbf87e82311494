#include "tests/support/Arrivals.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace testbench {

namespace {

size_t arrived = 0;
HHOOK hook = nullptr;

bool IsAnEnd(const MSG& message) {
    static constexpr std::array<UINT, 6> clicks = {WM_LBUTTONUP,   WM_MBUTTONUP,   WM_RBUTTONUP,
                                                   WM_NCLBUTTONUP, WM_NCMBUTTONUP, WM_NCRBUTTONUP};
    if (std::find(clicks.begin(), clicks.end(), message.message) != clicks.end())
        return true;
    if (message.message != WM_KEYUP && message.message != WM_SYSKEYUP)
        return false;
    return message.wParam != VK_SHIFT && message.wParam != VK_CONTROL && message.wParam != VK_MENU &&
           message.wParam != VK_LWIN;
}

LRESULT CALLBACK Look(int code, WPARAM isTaken, LPARAM what) {
    // Messages that a loop only looks at come again.
    if (code == HC_ACTION && isTaken == PM_REMOVE && IsAnEnd(*reinterpret_cast<const MSG*>(what)))
        arrived++;
    return CallNextHookEx(hook, code, isTaken, what);
}

} // namespace

Arrivals::Arrivals() {
    arrived = 0;
    hook = SetWindowsHookExW(WH_GETMESSAGE, Look, nullptr, GetCurrentThreadId());
}

Arrivals::~Arrivals() {
    UnhookWindowsHookEx(hook);
    hook = nullptr;
}

size_t Arrivals::Count() const {
    return arrived;
}

} // namespace testbench
