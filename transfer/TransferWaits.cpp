// Waits of the transfer drivers.
#include "transfer/TransferWaits.h"

#include "transfer/ProgressFrame.h"
#include "transfer/TransferContext.h"
#include "transfer/wxAsyncSerial.h"

#include <wx/evtloop.h>
#include <wx/gauge.h>

#include <chrono>

namespace {

constexpr int64_t PulseInterval = 50; // milliseconds

void StartClock(TransferContext& context) {
    context.WaitStart = wxDateTime::UNow();
}

void ReadClock(TransferContext& context) {
    context.WaitNow = wxDateTime::UNow();
    context.Elapsed = (context.WaitNow - context.WaitStart).GetMilliseconds().GetValue();
}

// Handles only painting and user input, nothing that could start another transfer.
void PumpUserEvents() {
    if (auto* loop = wxEventLoopBase::GetActive())
        loop->YieldFor(wxEVT_CATEGORY_UI | wxEVT_CATEGORY_USER_INPUT);
}

void TakeArrived(TransferContext& context) {
    const wxString text = wxAsyncSerial::GetData();
    context.RxBuffer += context.Arriving ? context.Arriving(text) : text;
}

} // namespace

TransferStatus WaitForLine(TransferContext& context, int timeoutMs, wxChar terminator, bool /*pulse*/) {
    auto* gauge = context.Progress->PulseGauge();
    gauge->Pulse();
    context.LastPulse = 0;
    StartClock(context);
    // Intentional: no sleep in this loop. The time from a radio's answer to the next line stays short.
    while (true) {
        PumpUserEvents();
        TakeArrived(context);
        context.FoundAt = context.RxBuffer.Find(terminator);
        ReadClock(context);
        if (context.Elapsed >= context.LastPulse + PulseInterval) {
            gauge->Pulse();
            context.LastPulse = context.Elapsed;
        }
        // Intentional: a line that arrives in the pass in which the time runs out counts as a time-out.
        if (context.Progress->Cancelled)
            return TransferCancelled;
        if (context.Elapsed >= timeoutMs)
            return TransferTimeout;
        if (context.FoundAt != wxNOT_FOUND)
            return TransferOk;
    }
}

void Delay(TransferContext& context, int ms, bool cancelTest) {
    if (ms == 0)
        return;
    StartClock(context);
    // The toolkit's clock counts whole milliseconds: it could shorten a pause of 2 ms by up to 1 ms.
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
    while (std::chrono::steady_clock::now() < end && !(cancelTest && context.Progress->Cancelled)) {
    }
    ReadClock(context);
}
