#include "robot/PumpLoop.h"

#include <wx/evtloop.h>

namespace testbench {

/// A loop inside that of a dialog or menu.
class PumpLoop::Loop {
public:
    wxGUIEventLoop& Get() { return m_loop; }

private:
    wxGUIEventLoop m_loop;
    wxEventLoopActivator m_activator{&m_loop};
};

PumpLoop::PumpLoop() : m_loop(std::make_unique<Loop>()) {}

PumpLoop::~PumpLoop() = default;

bool PumpLoop::DispatchOne(int ms) {
    constexpr int nothingCame = -1;
    // The toolkit does idle work by itself.
    return m_loop->Get().DispatchTimeout(static_cast<unsigned long>(ms)) != nothingCame;
}

bool PumpLoop::IsPending() {
    return m_loop->Get().Pending();
}

} // namespace testbench
