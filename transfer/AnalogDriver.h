// Driver of the analog radios.
#pragma once

#include "transfer/TransferStatus.h"

#include <wx/string.h>

class wxGrid;
struct TransferMeans;
struct TransferContext;

// Each protocol has its own namespace because both contexts share a base class: the caller names the
// protocol, so a digital context passed as its base can't select the wrong driver.
namespace AnalogProtocol {

/// Runs one transfer between the current page and an analog radio, from opening the port to closing it, and
/// reports a failure in a message box. Returns when the transfer is over; the window stays responsive
/// meanwhile.
///
/// @param grid     grid of the current page; a read writes its rows, a write sends the selected ones
/// @param mode     a TransferMode
/// @param portName device name, such as "/dev/ttyUSB0"
/// @param title    title of the progress window
TransferStatus TransferData(TransferContext& context, wxGrid* grid, int mode, const wxString& portName,
                            const wxString& title);

/// Same, with the port and the progress window of the caller, such as a test's.
TransferStatus TransferWith(TransferContext& context, wxGrid* grid, int mode, TransferMeans means);

/// Runs the exchange on the open port, with the progress window of the context. The caller reports the result
/// in a box and in the log.
///
/// @param mode a TransferMode
TransferStatus DoTransferData(TransferContext& context, wxGrid* grid, int mode);

} // namespace AnalogProtocol
