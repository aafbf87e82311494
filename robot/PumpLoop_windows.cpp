#include "robot/PumpLoop.h"

#include <wx/app.h>
#include <wx/evtloop.h>

namespace testbench {

/// The loop that runs already, if any: a dialog ends only while its own loop is the active one.
class PumpLoop::Loop {
public:
    Loop() {
        if (wxEventLoopBase::GetActive() == nullptr) {
            m_own = std::make_unique<wxGUIEventLoop>();
            m_activator = std::make_unique<wxEventLoopActivator>(m_own.get());
        }
    }

    /// Asked anew each time, as an event may end a loop.
    static wxGUIEventLoop& Get() { return static_cast<wxGUIEventLoop&>(*wxEventLoopBase::GetActive()); }

private:
    std::unique_ptr<wxGUIEventLoop> m_own;
    std::unique_ptr<wxEventLoopActivator> m_activator;
};

PumpLoop::PumpLoop() : m_loop(std::make_unique<Loop>()) {}

PumpLoop::~PumpLoop() = default;

bool PumpLoop::DispatchOne(int ms) {
    constexpr int nothingCame = -1;
    // What the toolkit's own loop does before it waits.
    wxTheApp->ProcessPendingEvents();
    while (!IsPending() && wxTheApp->ProcessIdle()) {
    }
    return Loop::Get().DispatchTimeout(static_cast<unsigned long>(ms)) != nothingCame;
}

bool PumpLoop::IsPending() {
    return Loop::Get().Pending();
}

} // namespace testbench
