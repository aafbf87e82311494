#include "transfer/PortLines.h"

#include <windows.h>

// The port library opens a device with both off, and a driver may keep them so when only its settings change.
void RaisePortLines(PortHandle handle) {
    EscapeCommFunction(handle, SETDTR);
    EscapeCommFunction(handle, SETRTS);
}
