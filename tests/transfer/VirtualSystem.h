// Time and ports of transfers that don't wait: virtual time, and ports in the test's own process.
#pragma once

#include "campaign/VirtualTime.h"
#include "transfer/TransferSystem.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace transfertest {

/// A serial port between the program and something that the test plays. Bytes need no time.
struct VirtualPort {
    std::string toProgram, toRadio; ///< arrived and not yet taken
    int speed = 9600;               ///< set by the program, in baud
    bool isOpen = false;            ///< the program has it open
    bool isThere = true;            ///< false once its plug has been pulled

    // What the radio's end wants to know. Called from the program's thread, at once.
    std::function<void()> opened, arrived, closed;
};

/// Replaces the system of transfers as long as it lives. One exists at a time.
class VirtualSystem : public TransferSystem {
public:
    VirtualSystem();
    ~VirtualSystem() override;
    VirtualSystem(const VirtualSystem&) = delete;
    VirtualSystem& operator=(const VirtualSystem&) = delete;

    /// The one that lives; null in a test in real time.
    static VirtualSystem* Current();

    Campaign::VirtualTime& Time() { return m_time; }

    /// Adds a port and returns its name, which is unique.
    std::string Add(std::shared_ptr<VirtualPort> port);

    bool Has(const std::string& portName) const { return m_ports.contains(portName); }

    /// True if the program could open the port now.
    bool IsFree(const std::string& portName) const;

    TransferClock& Clock() override;

    /// Opens one of the virtual ports, or else one of the computer.
    std::unique_ptr<TransferLine> Open(wxWindow* window, const wxString& portName,
                                       unsigned int baudRate) override;

private:
    class SystemClock;

    Campaign::VirtualTime m_time;
    std::map<std::string, std::shared_ptr<VirtualPort>> m_ports;
    std::shared_ptr<VirtualPort> m_opened; ///< the program's; it opens one at a time
    std::unique_ptr<TransferClock> m_clock;
    int m_added = 0;
};

} // namespace transfertest
