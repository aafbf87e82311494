#include "transfer/PromptWrite.h"

#include <unistd.h>

#include <algorithm>

// The port library opens a device such that its writes don't wait.
size_t WritePromptly(PortHandle handle, const char* data, size_t size) {
    return static_cast<size_t>(std::max<ssize_t>(::write(handle, data, size), 0));
}
