// The driver of the digital radios.
#pragma once

#include "transfer/TransferStatus.h"

#include <wx/string.h>

class wxGrid;
struct TRecordContext;

// Each protocol has a namespace; AnalogDriver.h gives the reason.
namespace TRecordProtocol {

/// Transfers the current page. Opens the port and the progress window, runs the dialogue, reports to the user
/// and the log of the transfer how it ended, and closes both again. Returns when all that is over.
///
/// @param grid grid of the current page; changed in place
/// @param mode a TransferMode
TransferStatus TransferData(TRecordContext& context, wxGrid* grid, int mode, const wxString& portName,
                            const wxString& title);

/// The dialogue itself. The context must have its open Port and its Progress.
///
/// @param mode a TransferMode
TransferStatus DoTransferData(TRecordContext& context, wxGrid* grid, int mode);

} // namespace TRecordProtocol
