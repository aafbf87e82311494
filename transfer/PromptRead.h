// Reading from a serial device without waiting for more than has come.
#pragma once

#include "transfer/PortLock.h"

#include <cstddef>

/// Returns how many bytes the next read should ask for, from 1 to `most`, so that it ends with the first
/// bytes that come. One source file for each operating system.
[[nodiscard]] size_t PromptReadSize(PortHandle handle, size_t most);
