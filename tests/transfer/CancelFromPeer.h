// A press of Cancel by the thread that plays the radio.
#pragma once

#include "tests/transfer/TransferTest.h"

#include <wx/timer.h>

#include <atomic>

namespace transfertest {

/// Does what the Cancel button does, for a thread without access to the window. The transfer may already be
/// over and its progress window gone. So the window's thread polls for a press every few milliseconds and
/// forgets one that finds no progress window. A waiting transfer handles no posted events, but timers run.
class CancelFromPeer : private wxTimer {
public:
    CancelFromPeer() { Start(Interval); }

    /// May be called from any thread at any time.
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
