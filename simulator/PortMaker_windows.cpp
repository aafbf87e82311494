#include "simulator/PortMaker.h"
#include "simulator/SerialPort.h"

namespace Simulator {

bool HasSimulatedPorts() {
    return false;
}

std::unique_ptr<Port> OpenPort(const Options& options) {
    return std::make_unique<SerialPort>(options.port);
}

} // namespace Simulator
