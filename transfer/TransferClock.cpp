#include "transfer/TransferClock.h"

#include "transfer/AnswerRhythm.h"
#include "transfer/PreciseSleep.h"
#include "transfer/wxAsyncSerial.h"

#include <wx/evtloop.h>

#include <algorithm>
#include <utility>

namespace {

/// The longest time between two passes over the window's events.
constexpr std::chrono::milliseconds EventInterval{5};

/// Pause between two looks at whether a window is drawn.
constexpr std::chrono::milliseconds DrawingInterval{1};

class SteadyClock : public TransferClock {
public:
    Moment Now() const override { return std::chrono::steady_clock::now(); }
    wxDateTime Date() const override { return wxDateTime::UNow(); }

    void HandleEvents() override {
        const bool textCame = std::exchange(m_textCame, false);
        if (!textCame && !m_waiting) {
            m_waiting = true;
            m_rhythm.Asked(Now());
        }
        if (textCame && Now() < m_nextEvents)
            return;
        if (auto* loop = wxEventLoopBase::GetActive())
            loop->YieldFor(wxEVT_CATEGORY_UI | wxEVT_CATEGORY_USER_INPUT);
        m_nextEvents = Now() + EventInterval;
    }

    void AwaitDrawing(const std::function<bool()>& isDrawn, Moment end) override {
        auto* loop = wxEventLoopBase::GetActive();
        while (loop && !isDrawn() && Now() < end) {
            loop->YieldFor(wxEVT_CATEGORY_UI);
            if (!isDrawn())
                SleepPrecisely(Now() + DrawingInterval);
        }
    }

    void WaitForText(Moment end, wxChar lineEnd) override {
        m_textCame = Await(std::min(end, m_nextEvents), lineEnd);
        if (m_textCame) {
            m_waiting = false;
            m_rhythm.Answered(Now());
        } else {
            m_nextEvents = Now() + EventInterval; // the caller handles them next
        }
    }

    void SleepUntil(Moment end) override { SleepPrecisely(end); }

private:
    /// Waits for text with `lineEnd` until `end`, or until a moment for events.
    bool Await(Moment end, wxChar lineEnd) const {
        while (true) {
            const AnswerRhythm::Part part = m_rhythm.Next(Now());
            const Moment until = std::min(end, part.end);
            if (part.asleep ? wxAsyncSerial::WaitForData(until, lineEnd)
                            : wxAsyncSerial::WatchForData(until, lineEnd))
                return true;
            if (until == end || part.eventsFollow)
                return false;
        }
    }

    AnswerRhythm m_rhythm;
    bool m_waiting = false; // for an answer

    /// A line comes in many small pieces. Events between them would take most of a transfer's processor time,
    /// and delay the reply to the last piece.
    bool m_textCame = false;
    Moment m_nextEvents{};
};

} // namespace

TransferClock& SystemClock() {
    static SteadyClock clock;
    return clock;
}
