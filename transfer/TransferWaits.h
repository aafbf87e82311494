// The waits of the transfer drivers.
#pragma once

#include "transfer/TransferStatus.h"

#include <wx/chartype.h>

struct TransferContext;

/// Waits until the port has brought a line, the user cancels or the time is up. Keeps the window alive
/// meanwhile and moves the pulse gauge every 50 ms. Received text passes `context.Arriving`, if that is set,
/// and is added to `context.RxBuffer`, which keeps what it held; `context.FoundAt` is the position of its
/// first terminator. The context must have its `Progress`.
///
/// @param timeoutMs  time-out in milliseconds
/// @param terminator last character of a line
/// @param pulse      taken and without effect: the gauge pulses in any case
/// @return TransferOk (0) for a line, TransferTimeout (4), TransferCancelled (10). Cancel goes before
///         time-out and time-out before a line that came in the same pass.
TransferStatus WaitForLine(TransferContext& context, int timeoutMs, wxChar terminator, bool pulse);

/// Lets time pass, without a look at events: the window doesn't respond meanwhile.
///
/// @param ms         time in milliseconds; 0 returns at once and leaves the context as it is
/// @param cancelTest whether a Cancel pressed earlier ends the delay; `context.Progress` is needed for it
void Delay(TransferContext& context, int ms, bool cancelTest);
