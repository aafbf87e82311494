// What a transfer is to the user, whatever radio it serves: its window, its boxes, its received lines.
#pragma once

#include <wx/string.h>

class wxGrid;
struct TransferContext;

/// Makes and shows the progress window over a grid, as context.Progress, which disables all other windows.
/// Its main gauge stands at 0 and counts the grid's rows.
void MakeProgressFrame(TransferContext& context, wxGrid* grid, const wxString& title);

/// Closes the log of the transfer and the port, and destroys port and progress window; both pointers of
/// the context are null afterwards. What is still to be sent has 200 ms to go out, and is dropped then.
void TakeDown(TransferContext& context);

/// Tells the user of a failure in a box.
void ShowError(TransferContext& context, const wxString& text);

/// Shows context.StatusText in the progress window and writes it to the log.
void ShowStatus(TransferContext& context);

/// Moves the main gauge if the value is in its range.
void SetMainGauge(TransferContext& context, int value);

/// Takes what stands before the terminator that WaitForLine found out of the buffer into context.RxLine,
/// without the blanks and line feeds that it begins with, and drops the terminator. What follows stays,
/// trimmed in the same way.
void TakeReceivedLine(TransferContext& context);
