// Driver of the digital radios.
#pragma once

#include "transfer/TransferStatus.h"

#include <wx/string.h>

class wxGrid;
struct TransferMeans;
struct TRecordContext;

// Each protocol has a namespace; see AnalogDriver.h for the reason.
namespace TRecordProtocol {

/// Transfers the current page. Opens the port and the progress window, runs the dialogue, reports the result
/// to the user and the log of the transfer, and closes both again. Returns when all this is done.
///
/// @param grid grid of the current page; changed in place
/// @param mode a TransferMode
TransferStatus TransferData(TRecordContext& context, wxGrid* grid, int mode, const wxString& portName,
                            const wxString& title);

/// Same, with the port and the progress window of the caller, such as a test's.
TransferStatus TransferWith(TRecordContext& context, wxGrid* grid, int mode, TransferMeans means);

/// Runs the dialogue alone. The context must have an open Port and its Progress.
///
/// @param mode a TransferMode
TransferStatus DoTransferData(TRecordContext& context, wxGrid* grid, int mode);

} // namespace TRecordProtocol
