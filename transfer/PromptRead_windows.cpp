#include "transfer/PromptRead.h"

#include <windows.h>

#include <algorithm>

// A read ends when it has all that it asks for, or when nothing has come for a tick of the system's clock.
// Each line would reach the driver that late.
size_t PromptReadSize(PortHandle handle, size_t most) {
    DWORD errors = 0;
    COMSTAT state{};
    if (!ClearCommError(handle, &errors, &state))
        return 1;
    return std::clamp<size_t>(state.cbInQue, 1, most);
}
