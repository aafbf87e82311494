// Pseudo-terminal that simulates a serial port.
#pragma once

#include "simulator/Port.h"

namespace Simulator {

/// The radio's side of a pseudo-terminal, and a watch on opens and closes of the other side. Never keeps the
/// other side open: only then does the system report when its user has gone, and release a lock that he left
/// on the device.
class PseudoTerminal : public Port {
public:
    /// Opens a pseudo-terminal, raw and at 9600 baud. Throws std::system_error if that fails.
    PseudoTerminal();
    ~PseudoTerminal() override;
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// Device name of the other side.
    std::string Name() const override { return m_device; }
    Visit TakeVisits() override;
    bool SeesVisits() const override { return true; }
    bool IsOpen() const override { return m_users > 0; }
    void Wait(Wanted wanted, std::optional<TimePoint> due, const Requests& requests) override;
    std::string Read(size_t limit) override;
    size_t Write(std::string_view bytes) override;
    int Speed() const override;
    void SetSpeed(int) override {}
    /// Discards what the other side hasn't read. If it is closed, also resets the line to raw and 9600 baud.
    void Flush() override;
    Failure Lost() const override { return {}; }

private:
    int m_master = -1;
    int m_watch = -1;
    int m_users = 0;
    std::string m_device;
};

} // namespace Simulator
