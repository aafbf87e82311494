// The dialogue with the digital radios.
#pragma once

#include <cstdint>
#include <wx/string.h>

class wxGrid;
struct TRecordContext;

/// Transfers the current page. Opens the port and the progress window, runs the dialogue, tells the user and
/// the log of the transfer how it ended, and closes both again. Returns when all that is over.
///
/// @param grid grid of the current page; changed in place
/// @param mode a TransferMode
/// @return a TransferStatus
int TransferData(TRecordContext& context, wxGrid* grid, int mode, const wxString& portName,
                 const wxString& title);

/// The dialogue itself. The context must have its open Port and its Progress.
///
/// @return a TransferStatus
int DoTransferData(TRecordContext& context, wxGrid* grid, int mode);

/// Sends the end record; no answer is waited for.
void SendEndRecord(TRecordContext& context);

/// The operating mode that a row of the current page uses and radioModes lacks: WideMode,
/// NarrowMode or DigitalMode, or 0.
std::uint32_t CheckForInvalidOpModes(TRecordContext& context, int row, std::uint32_t radioModes);
