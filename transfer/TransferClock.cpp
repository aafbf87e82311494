#include "transfer/TransferClock.h"

#include "transfer/PreciseSleep.h"
#include "transfer/wxAsyncSerial.h"

#include <wx/evtloop.h>

#include <algorithm>

namespace {

/// The longest time between two passes over the window's events.
constexpr std::chrono::milliseconds EventInterval{5};

class SteadyClock : public TransferClock {
public:
    Moment Now() const override { return std::chrono::steady_clock::now(); }
    wxDateTime Date() const override { return wxDateTime::UNow(); }

    void HandleEvents() override {
        if (auto* loop = wxEventLoopBase::GetActive())
            loop->YieldFor(wxEVT_CATEGORY_UI | wxEVT_CATEGORY_USER_INPUT);
    }

    void WaitForText(Moment end) override {
        wxAsyncSerial::WaitForData(std::min(end, Now() + EventInterval));
    }

    void SleepUntil(Moment end) override { SleepPrecisely(end); }
};

} // namespace

TransferClock& SystemClock() {
    static SteadyClock clock;
    return clock;
}
