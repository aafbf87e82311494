// Pseudo-terminal that simulates a serial port.
#pragma once

#include <string>
#include <string_view>

namespace Simulator {

/// The radio's side of a pseudo-terminal, and a watch on opens and closes of the other side. Never keeps the
/// other side open: only then does the system report when its user has gone, and release a lock that he left
/// on the device.
class PseudoTerminal {
public:
    /// Opens a pseudo-terminal, raw and at 9600 baud. Throws std::system_error if that fails.
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// Device name of the other side.
    const std::string& DeviceName() const { return m_device; }
    int Descriptor() const { return m_master; }
    int WatchDescriptor() const { return m_watch; }

    /// Opens and closes of the other side since the last call.
    struct Visit {
        bool opened = false;
        bool closed = false; ///< the last user has closed it (another may have opened it since, see IsOpen)
    };
    Visit TakeVisits();
    /// True while the other side is open.
    bool IsOpen() const { return m_users > 0; }

    /// Reads bytes that have arrived, up to `limit`; empty if there are none.
    std::string Read(size_t limit);
    /// Writes as many bytes as fit and returns their number; all of them while the other side is closed.
    size_t Write(std::string_view bytes);
    /// Speed that the other side has set, in baud.
    int Speed() const;
    /// Discards what the other side hasn't read. If it is closed, also resets the line to raw and 9600 baud.
    void Flush();

private:
    int m_master = -1;
    int m_watch = -1;
    int m_users = 0;
    std::string m_device;
};

} // namespace Simulator
