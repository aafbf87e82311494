// Writing to a serial device without its thread.
#pragma once

#include "transfer/PortLock.h"

#include <cstddef>

/// Hands the device what it takes without waiting. One source file for each operating system.
///
/// @return number of bytes taken, from the first one on; 0 also if the device has failed, or if
///         the system has no such writes
[[nodiscard]] size_t WritePromptly(PortHandle handle, const char* data, size_t size);
