// What a wait for a port watches on Windows besides the port.
#pragma once

#include "simulator/Requests.h"

#include <windows.h>

namespace Simulator {

struct Requests::System {
    HANDLE stop = nullptr; ///< set when the program has to end
    HANDLE done = nullptr; ///< set when it has saved everything
};

} // namespace Simulator
