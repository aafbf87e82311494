// The dialogue with the analog radios.
#pragma once

#include <wx/string.h>

class wxGrid;
struct TransferContext;

/// Runs one transfer between the current page and an analog radio, from the opening of the port to its
/// close, and tells the user of a failure in a box. Returns when the transfer is over; the window lives on
/// meanwhile.
///
/// @param grid     the current page's; a read writes its rows, a write sends those that are selected
/// @param mode     a TransferMode
/// @param portName device name, such as "/dev/ttyUSB0"
/// @param title    of the progress window
/// @return how it ended, a TransferStatus
int TransferData(TransferContext& context, wxGrid* grid, int mode, const wxString& portName,
                 const wxString& title);

/// The exchange itself, on the open port and with the progress window of the context.
///
/// @return how it ended, a TransferStatus; the box and the log line for it are the caller's
int DoTransferData(TransferContext& context, wxGrid* grid, int mode);

/// Sends a text character by character, with a pause after each: analog radios have no way to say stop.
/// Blocks the window for that time and doesn't look at Cancel.
///
/// @param slow true for commands: 350 ms a character; false for lines: 2 ms, and a carriage return is added
void SendPaced(TransferContext& context, const wxString& text, bool slow);
