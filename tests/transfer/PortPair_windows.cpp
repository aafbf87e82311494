#include "tests/transfer/PortPair_windows.h"

#include <windows.h>

#include <cstdlib>
#include <stdexcept>

namespace transfertest {

namespace {

/// Drops what has come to a port that nobody has open.
void Empty(const std::string& port) {
    const HANDLE device = CreateFileA(("\\\\.\\" + port).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    if (device == INVALID_HANDLE_VALUE)
        throw std::runtime_error("ZELK_PORT_PAIR: " + port + " can't be opened");
    PurgeComm(device, PURGE_RXCLEAR | PURGE_TXCLEAR);
    CloseHandle(device);
}

} // namespace

PortPair::PortPair() {
    const char* const names = std::getenv("ZELK_PORT_PAIR");
    const std::string both = names ? names : "";
    const size_t comma = both.find(',');
    if (comma == std::string::npos)
        throw std::runtime_error("a test in real time needs ZELK_PORT_PAIR, two ports that are joined");
    program = both.substr(0, comma);
    radio = both.substr(comma + 1);
    Empty(program);
    Empty(radio);
}

} // namespace transfertest
