// The pseudo-terminal that stands in for a serial port.
#pragma once

#include <string>
#include <string_view>

namespace Simulator {

/// The radio's side of a pseudo-terminal, and a watch on who opens and closes the other side. The other
/// side is never held open here: only then does the system tell when its user has gone, and a lock that
/// a user left on the device goes with him.
class PseudoTerminal {
public:
    /// Opens one, raw and at 9600 baud. Throws std::system_error when the system has none to give.
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// Name of the side that others open.
    const std::string& DeviceName() const { return m_device; }
    int Descriptor() const { return m_master; }
    int WatchDescriptor() const { return m_watch; }

    /// What opening and closing has done since the last call.
    struct Visit {
        bool opened = false;
        bool closed = false; ///< the last user went (a new one may have come since, see IsOpen)
    };
    Visit TakeVisits();
    /// True while somebody has the other side open.
    bool IsOpen() const { return m_users > 0; }

    /// Bytes that have arrived, up to `limit`; empty when there are none.
    std::string Read(std::size_t limit);
    /// Writes what fits and answers how many bytes that were. Bytes for nobody count as written.
    std::size_t Write(std::string_view bytes);
    /// The speed that the other side has set, in baud.
    int Speed() const;
    /// Drops what the other side hasn't read. With nobody there the line also becomes raw again.
    void Flush();

private:
    int m_master = -1;
    int m_watch = -1;
    int m_users = 0;
    std::string m_device;
};

} // namespace Simulator
