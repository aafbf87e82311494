// Serial cable between the program and a simulated radio, in virtual time, with faults at any byte.
#pragma once

#include "campaign/Fault.h"
#include "campaign/VirtualTime.h"
#include "transfer/TransferLine.h"

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Campaign {

/// Both directions of a cable. A byte takes ten bits at the speed of the program's port.
class Cable {
public:
    /// What the cable does to others. All must be set before the port is opened.
    struct Ends {
        std::function<void(uint8_t, int baud)> radioHears;
        std::function<void()> radioRestarts;
        std::function<void()> radioIsLeft; ///< the program has closed the port
        std::function<void()> userCancels;
        std::function<void(size_t)> faultHappens;           ///< gets its place in the list
        std::function<void(std::string_view)> radioSends;   ///< bytes before the faults of the cable
        std::function<void(std::string_view)> programHears; ///< bytes behind them
    };

    /// `time` must outlive the cable.
    Cable(VirtualTime& time, std::vector<Fault> faults);

    void Connect(Ends ends) { m_ends = std::move(ends); }

    // ---- The program's end ----

    void Open(unsigned baud);
    void SetSpeed(unsigned baud);
    void Write(std::string_view bytes);
    bool HasArrived() const { return !m_arrived.empty(); }
    std::string TakeArrived();
    /// True if all written bytes are on their way, or never will be.
    bool IsWritten() const { return m_waiting.empty() || m_gone; }
    void Close();
    bool IsOpen() const { return m_open; }
    bool HasFailed() const { return m_gone; }
    int Speed() const { return m_speed; }

    // ---- The radio's end ----

    /// Takes bytes that the radio has just sent.
    void TakeFromRadio(std::string_view bytes);
    void Unplug() { m_gone = true; }

    // ---- For the record ----

    /// The moment at which a byte was last sent or arrived.
    Moment LastByte() const { return m_lastByte; }
    /// Bytes that the program had written and that its closing of the port has dropped.
    int Dropped() const { return m_dropped; }
    /// Bytes so far, by Side.
    int Bytes(Side side) const { return Of(side).count; }
    /// True if a fault has lost, added or changed bytes of that direction.
    bool IsSpoilt(Side side) const { return Of(side).spoilt; }
    /// Faults that have happened, by their place in the list.
    const std::vector<bool>& Happened() const { return m_happened; }
    void MarkHappened(size_t fault);
    const std::vector<Fault>& Faults() const { return m_faults; }

private:
    struct Direction {
        int count = 0; ///< bytes that have reached the place of faults
        int lose = 0;  ///< bytes still to be lost
        bool cut = false;
        bool spoilt = false;
        Moment heldUntil{};
    };

    Direction& Of(Side side) { return m_directions[static_cast<size_t>(side)]; }
    const Direction& Of(Side side) const { return m_directions[static_cast<size_t>(side)]; }
    void SendNext();
    void Carry(Side side, uint8_t byte);
    void Deliver(Side side, uint8_t byte);
    void Arrive(Side side, uint8_t byte);
    void MakeNoise(Side side, const Fault& fault);

    VirtualTime& m_time;
    std::vector<Fault> m_faults;
    std::vector<bool> m_happened;
    Ends m_ends;
    std::array<Direction, 2> m_directions;
    std::deque<uint8_t> m_waiting; ///< written by the program, not yet sent
    bool m_sending = false;
    bool m_open = false;
    bool m_gone = false;
    int m_speed = 0;
    int m_dropped = 0;
    std::string m_arrived;
    Moment m_lastByte{};
};

/// The cable as the program's port.
class CablePort : public TransferLine {
public:
    /// Both must outlive the port.
    CablePort(VirtualTime& time, Cable& cable) : m_time(time), m_cable(cable) {}
    ~CablePort() override { close(); }

    void open(const wxString& deviceName, unsigned int baudRate) override;
    void setBaudRate(unsigned int baudRate) override;
    bool isOpen() const override { return m_cable.IsOpen(); }
    bool errorStatus() const override { return m_cable.HasFailed(); }
    void write(const wxString& text) override;
    bool waitUntilWritten(int limitMs) override;
    wxString takeReceived() override;
    void close() override { m_cable.Close(); }

private:
    VirtualTime& m_time;
    Cable& m_cable;
};

/// Thrown out of a transfer that goes on for ever.
struct Endless : std::runtime_error {
    Endless() : std::runtime_error("a transfer that doesn't end") {}
};

/// The clock of a program at the end of a cable.
class CableClock : public TransferClock {
public:
    /// `time` and `cable` must outlive the clock.
    CableClock(VirtualTime& time, Cable& cable) : m_time(time), m_cable(cable) {}

    /// The user presses Cancel: `pressed` is set as soon as the program handles events.
    void PressCancel(bool& pressed) { m_cancelled = &pressed; }

    Moment Now() const override { return m_time.Now(); }
    wxDateTime Date() const override;
    void HandleEvents() override;
    /// Throws Endless if there were more waits than any transfer needs.
    void WaitForText(Moment end, wxChar lineEnd) override;
    void SleepUntil(Moment end) override { m_time.AdvanceTo(end); }

private:
    VirtualTime& m_time;
    Cable& m_cable;
    bool* m_cancelled = nullptr;
    int m_waits = 0;
};

} // namespace Campaign
