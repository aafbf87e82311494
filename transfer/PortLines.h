// The lines DTR and RTS of an open serial device.
#pragma once

#include "transfer/PortLock.h"

/// Raises both lines, from which some cables take their power. They stay so until the device is closed.
/// Does nothing on a device without such lines. One source file for each operating system.
void RaisePortLines(PortHandle handle);
