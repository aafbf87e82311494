// What the user asks of a running zelk-radio.
#pragma once

#include <memory>

namespace Simulator {

/// Watches the requests of the user for the lifetime of the object, of which there is only one: Ctrl+C and
/// its kin, and where the system has signals the one that presses the radio's key. One source file for each
/// operating system.
class Requests {
public:
    /// Throws std::runtime_error if requests can't be watched.
    Requests();
    ~Requests();
    Requests(const Requests&) = delete;
    Requests& operator=(const Requests&) = delete;

    struct Asked {
        bool stop = false;
        int keyPresses = 0;
    };
    /// Returns what was asked since the last call.
    Asked Take();

    /// What a wait of the system has to watch, too.
    struct System;
    const System& Watched() const { return *m_system; }

private:
    std::unique_ptr<System> m_system;
};

} // namespace Simulator
