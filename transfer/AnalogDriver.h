// The driver of the analog radios.
#pragma once

#include "transfer/TransferStatus.h"

#include <wx/string.h>

class wxGrid;
struct TransferContext;

// Each protocol has a namespace, because both start from the same kind of context: the caller names the
// protocol, and a digital context that is passed as its base can't choose the wrong one.
namespace AnalogProtocol {

/// Runs one transfer between the current page and an analog radio, from the opening of the port to its
/// close, and reports a failure in a box. Returns when the transfer is over; the window stays alive
/// meanwhile.
///
/// @param grid     the current page's; a read writes its rows, a write sends those that are selected
/// @param mode     a TransferMode
/// @param portName device name, such as "/dev/ttyUSB0"
/// @param title    of the progress window
TransferStatus TransferData(TransferContext& context, wxGrid* grid, int mode, const wxString& portName,
                            const wxString& title);

/// The exchange itself, on the open port and with the progress window of the context. The box and the log
/// line for the result are the caller's.
///
/// @param mode a TransferMode
TransferStatus DoTransferData(TransferContext& context, wxGrid* grid, int mode);

} // namespace AnalogProtocol
