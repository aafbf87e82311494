// What transfers need of the system: time and ports.
#pragma once

#include "transfer/TransferClock.h"
#include "transfer/TransferLine.h"

#include <wx/string.h>

#include <memory>

class wxWindow;

/// Time and serial ports: the computer's, or those of a test.
class TransferSystem {
public:
    virtual ~TransferSystem() = default;

    virtual TransferClock& Clock() = 0;

    /// Opens a port at a speed in baud. The line's isOpen() reports success.
    /// @param window owns what the port shows, if it shows anything
    virtual std::unique_ptr<TransferLine> Open(wxWindow* window, const wxString& portName,
                                               unsigned int baudRate) = 0;
};

/// The system of all transfers that start from now on: the computer's, unless a test has replaced it.
TransferSystem& CurrentTransferSystem();

/// Replaces the system for tests; null brings the computer's back. `system` must outlive its use.
void UseTransferSystem(TransferSystem* system);
