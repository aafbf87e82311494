// Opens the port that a command line asks for.
#pragma once

#include "simulator/Options.h"
#include "simulator/Port.h"

#include <memory>

namespace Simulator {

// One source file for each operating system.

/// True if this system has simulated ports. Without them the options must name a port.
bool HasSimulatedPorts();

/// Opens the port. Throws std::exception with a sentence for the user if that fails.
std::unique_ptr<Port> OpenPort(const Options& options);

} // namespace Simulator
