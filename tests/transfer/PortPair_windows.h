// Two serial ports that are joined.
#pragma once

#include <string>

namespace transfertest {

/// What is written to one port arrives at the other. Nothing is left in them from former uses.
struct PortPair {
    std::string program; ///< for the program, such as "COM5"
    std::string radio;   ///< for what the test plays

    /// Takes the names from the environment, ZELK_PORT_PAIR=COM5,COM6. Throws std::runtime_error if it names
    /// no such ports.
    PortPair();
};

} // namespace transfertest
