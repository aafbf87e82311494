// A serial port that zelk-radio was given.
#pragma once

#include "simulator/Port.h"

#include <memory>

namespace Simulator {

/// One end of a null modem cable, or of a pair of virtual ports. One source file for each operating system.
///
/// The line tells neither when the program opens or closes its end nor at which speed it listens. This end is
/// at the speed that was set last.
class SerialPort : public Port {
public:
    /// Opens the port at 9600 baud, 8 data bits, no parity, and raises DTR and RTS. Throws std::runtime_error
    /// with a sentence for the user if it can't be opened, is in use, or is no serial port.
    explicit SerialPort(const std::string& name);
    ~SerialPort() override;
    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;

    std::string Name() const override { return m_name; }
    Visit TakeVisits() override { return {}; }
    bool SeesVisits() const override { return false; }
    bool IsOpen() const override { return true; }
    void Wait(Wanted wanted, std::optional<TimePoint> due, const Requests& requests) override;
    std::string Read(size_t limit) override;
    size_t Write(std::string_view bytes) override;
    int Speed() const override { return m_speed; }
    void SetSpeed(int baud) override;
    void Flush() override {}
    Failure Lost() const override { return m_lost; }

private:
    struct System;

    std::string m_name;
    std::unique_ptr<System> m_system;
    int m_speed = 9600;
    Failure m_lost;
};

} // namespace Simulator
