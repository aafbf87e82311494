// Cancel, pressed by the thread that plays the radio.
#pragma once

#include "tests/transfer/TransferTest.h"

#include <atomic>
#include <wx/timer.h>

namespace transfertest {

/// Does what the Cancel button does, for a thread that doesn't have the window. The transfer may be over by
/// the time that it gets here, and its progress window gone: so the thread of the window looks for a press
/// every few milliseconds, and a press that finds no progress window is forgotten. A waiting transfer takes
/// no posted events, but lets timers run.
class CancelFromPeer : private wxTimer {
public:
    CancelFromPeer() { Start(Interval); }

    /// May be called from any thread, at any time.
    void Press() { m_pressed = true; }

private:
    static constexpr int Interval = 2; // ms

    void Notify() override {
        if (!m_pressed.exchange(false))
            return;
        if (ProgressFrame* progress = OpenProgress())
            progress->Cancelled = true;
    }

    std::atomic<bool> m_pressed = false;
};

} // namespace transfertest
