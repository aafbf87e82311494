// Position of a transfer's Cancel button on the screen.
#pragma once

#include "robot/ScreenSpots.h"
#include "transfer/ProgressFrame.h"

#include <wx/button.h>
#include <wx/eventfilter.h>

#include <chrono>
#include <mutex>
#include <thread>

namespace transfertest {

/// Finds the position of the Cancel button through the events that the progress window receives.
class CancelSpot : public wxEventFilter {
public:
    CancelSpot() { wxEvtHandler::AddFilter(this); }
    ~CancelSpot() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& event) override {
        auto* window = dynamic_cast<wxWindow*>(event.GetEventObject());
        const auto* frame = window ? dynamic_cast<ProgressFrame*>(wxGetTopLevelParent(window)) : nullptr;
        if (!frame || !frame->IsShownOnScreen())
            return Event_Skip;
        for (const wxWindow* child : frame->GetChildren())
            if (const auto* button = dynamic_cast<const wxButton*>(child)) {
                const std::lock_guard lock(m_mutex);
                m_spot = testbench::MiddleOf(*button);
            }
        return Event_Skip;
    }

    /// May be called from any thread.
    wxPoint Await() const {
        wxPoint spot;
        for (int tries = 0; tries < 300 && spot == wxPoint(); ++tries) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            const std::lock_guard lock(m_mutex);
            spot = m_spot;
        }
        return spot;
    }

private:
    mutable std::mutex m_mutex;
    wxPoint m_spot;
};

} // namespace transfertest
