#include "simulator/PortLink.h"
#include "simulator/PortMaker.h"
#include "simulator/PseudoTerminal.h"
#include "simulator/SerialPort.h"

namespace Simulator {

namespace {

/// A pseudo-terminal with a link to it. The link is destroyed first, so that no link without a device is ever
/// visible.
class SimulatedPort : public PseudoTerminal {
public:
    SimulatedPort(const std::string& folder, const std::string& name)
        : m_link(folder, name, PseudoTerminal::Name()) {}

    std::string Name() const override { return m_link.Path(); }

private:
    PortLink m_link;
};

} // namespace

bool HasSimulatedPorts() {
    return true;
}

std::unique_ptr<Port> OpenPort(const Options& options) {
    if (!options.port.empty())
        return std::make_unique<SerialPort>(options.port);
    return std::make_unique<SimulatedPort>(
        options.portsFolder.empty() ? DefaultPortsFolder() : options.portsFolder, options.name);
}

} // namespace Simulator
