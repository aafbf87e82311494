// Access to a transfer's progress window from a thread of the test.
#pragma once

#include "transfer/ProgressFrame.h"

#include <wx/eventfilter.h>
#include <wx/gauge.h>

#include <chrono>
#include <mutex>
#include <thread>

namespace transfertest {

/// Knows the progress window by the events that it receives, while it exists. A thread that is too late finds
/// none.
class ProgressWatch : public wxEventFilter {
public:
    ProgressWatch() { wxEvtHandler::AddFilter(this); }
    ~ProgressWatch() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& event) override {
        const std::lock_guard lock(m_mutex);
        if (event.GetEventType() == wxEVT_DESTROY) {
            // By then it is no longer a ProgressFrame.
            if (m_frame && event.GetEventObject() == m_object)
                m_frame = nullptr;
        } else if (auto* frame = dynamic_cast<ProgressFrame*>(event.GetEventObject())) {
            m_frame = frame;
            m_object = frame;
        }
        return Event_Skip;
    }

    /// Does what the Cancel button does: the waits of a transfer poll the flag. A transfer handles only the
    /// user's events, so the window's thread can't be given work meanwhile. Does nothing if the transfer is
    /// over.
    void Cancel() {
        const std::lock_guard lock(m_mutex);
        if (m_frame)
            m_frame->Cancelled = true;
    }

    /// The main gauge's value, once it is at least that or a time limit has passed; -1 if the transfer is
    /// over.
    int GaugeValue(int atLeast) {
        int value = Gauge(&wxGauge::GetValue);
        for (int tries = 0; tries < 300 && value >= 0 && value < atLeast; ++tries) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            value = Gauge(&wxGauge::GetValue);
        }
        return value;
    }

    /// The main gauge's range; -1 if the transfer is over.
    int GaugeRange() { return Gauge(&wxGauge::GetRange); }

private:
    int Gauge(int (wxGauge::*property)() const) {
        const std::lock_guard lock(m_mutex);
        return m_frame ? (m_frame->MainGauge()->*property)() : -1;
    }

    std::mutex m_mutex;
    ProgressFrame* m_frame = nullptr;
    const wxObject* m_object = nullptr;
};

} // namespace transfertest
