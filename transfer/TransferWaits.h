// Waits of the transfer drivers.
#pragma once

#include "transfer/TransferStatus.h"

#include <wx/chartype.h>

struct TransferContext;

/// Waits until a line has arrived, the user cancels or the time is up. Meanwhile keeps the window alive and
/// moves the pulse gauge every 50 ms. Received text passes `context.Arriving`, if set, and is appended to
/// `context.RxBuffer`; `context.FoundAt` is the position of the first terminator in it. The context must have
/// its `Progress`.
///
/// @param timeoutMs  time-out in milliseconds
/// @param terminator last character of a line
/// @param pulse      ignored: the gauge always pulses
/// @return TransferOk (0) for a line, TransferTimeout (4), TransferCancelled (10). In the same pass, Cancel
///         takes precedence over the time-out, and the time-out over a line.
TransferStatus WaitForLine(TransferContext& context, int timeoutMs, wxChar terminator, bool pulse);

/// Waits without handling events: the window doesn't respond meanwhile.
///
/// @param ms         time in milliseconds; 0 returns at once and leaves the context unchanged
/// @param cancelTest whether a Cancel pressed earlier ends the delay; needs `context.Progress`
void Delay(TransferContext& context, int ms, bool cancelTest);
