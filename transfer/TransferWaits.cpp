// Waits of the transfer drivers.
#include "transfer/TransferWaits.h"

#include "transfer/TransferClock.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferLine.h"
#include "transfer/TransferProgress.h"
#include "transfer/wxAsyncSerial.h"

#include <algorithm>
#include <chrono>

namespace {

using std::chrono::milliseconds;

constexpr int64_t PulseInterval = 50; // milliseconds

TransferClock::Moment StartTimer(TransferContext& context) {
    context.WaitStart = context.Clock->Date();
    return context.Clock->Now();
}

void ReadTimer(TransferContext& context, TransferClock::Moment start) {
    context.Elapsed = std::chrono::duration_cast<milliseconds>(context.Clock->Now() - start).count();
    context.WaitNow = context.WaitStart + wxTimeSpan::Milliseconds(context.Elapsed);
}

void TakeArrived(TransferContext& context) {
    const wxString text = context.Port ? context.Port->takeReceived() : wxAsyncSerial::GetData();
    context.RxBuffer += context.Arriving ? context.Arriving(text) : text;
}

} // namespace

TransferStatus WaitForLine(TransferContext& context, int timeoutMs, wxChar terminator, bool /*pulse*/) {
    context.Progress->Pulse();
    context.LastPulse = 0;
    const TransferClock::Moment start = StartTimer(context);
    while (true) {
        context.Clock->HandleEvents();
        TakeArrived(context);
        context.FoundAt = context.RxBuffer.Find(terminator);
        ReadTimer(context, start);
        if (context.Elapsed >= context.LastPulse + PulseInterval) {
            context.Progress->Pulse();
            context.LastPulse = context.Elapsed;
        }
        // Intentional: a line that arrives in the pass in which the time runs out counts as a time-out.
        if (context.Progress->Cancelled)
            return TransferCancelled;
        if (context.Elapsed >= timeoutMs)
            return TransferTimeout;
        if (context.FoundAt != wxNOT_FOUND)
            return TransferOk;
        context.Clock->WaitForText(
            start + milliseconds(std::min<int64_t>(timeoutMs, context.LastPulse + PulseInterval)),
            terminator);
    }
}

void Delay(TransferContext& context, int ms, bool cancelTest) {
    if (ms == 0)
        return;
    const TransferClock::Moment start = StartTimer(context);
    // No events are handled here, so the user can't cancel during the delay.
    if (!cancelTest || !context.Progress->Cancelled) {
        if (context.Progress)
            context.Progress->DrawStatus(start + milliseconds(ms));
        context.Clock->SleepUntil(start + milliseconds(ms));
    }
    ReadTimer(context, start);
}
