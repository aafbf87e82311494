// What a wait for a port watches on Linux besides the port.
#pragma once

#include "simulator/Requests.h"

namespace Simulator {

struct Requests::System {
    int signals = -1; ///< signalfd
};

} // namespace Simulator
