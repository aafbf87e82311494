#include "tests/transfer/VirtualSystem.h"

#include "transfer/wxAsyncSerial.h"

#include <utility>

namespace transfertest {

namespace {

VirtualSystem* current = nullptr;

/// The program's end of a virtual port.
class VirtualLine : public TransferLine {
public:
    explicit VirtualLine(std::shared_ptr<VirtualPort> port, unsigned int baudRate) : m_port(std::move(port)) {
        m_failed = !m_port->isThere || m_port->isOpen;
        m_open = !m_failed;
        if (!m_open)
            return;
        m_port->isOpen = true;
        m_port->speed = static_cast<int>(baudRate);
        m_port->toProgram.clear();
        Tell(m_port->opened);
    }
    ~VirtualLine() override { VirtualLine::close(); }

    void open(const wxString&, unsigned int) override {}
    void setBaudRate(unsigned int baudRate) override { m_port->speed = static_cast<int>(baudRate); }
    bool isOpen() const override { return m_open; }
    bool errorStatus() const override { return m_failed || !m_port->isThere; }
    void write(const wxString& text) override {
        if (!m_open || !m_port->isThere)
            return;
        m_port->toRadio += text.mb_str(wxConvLibc);
        Tell(m_port->arrived);
    }
    bool waitUntilWritten(int) override { return true; }
    wxString takeReceived() override {
        const std::string bytes = std::exchange(m_port->toProgram, {});
        return wxString(bytes.data(), wxConvISO8859_1, bytes.size());
    }
    void close() override {
        if (!std::exchange(m_open, false))
            return;
        m_port->isOpen = false;
        Tell(m_port->closed);
    }

private:
    static void Tell(const std::function<void()>& listener) {
        if (listener)
            listener();
    }

    std::shared_ptr<VirtualPort> m_port;
    bool m_open = false, m_failed = false;
};

} // namespace

class VirtualSystem::SystemClock : public TransferClock {
public:
    explicit SystemClock(VirtualSystem& system) : m_system(system) {}

    Moment Now() const override { return m_system.m_time.Now(); }
    wxDateTime Date() const override {
        return m_start + wxTimeSpan::Milliseconds(m_system.m_time.Milliseconds());
    }
    void HandleEvents() override { ::SystemClock().HandleEvents(); }
    void WaitForText(Moment end, wxChar /*lineEnd*/) override {
        const auto hasText = [&] { return m_system.m_opened && !m_system.m_opened->toProgram.empty(); };
        while (!hasText())
            if (!m_system.m_time.RunNext(end)) {
                m_system.m_time.AdvanceTo(end);
                return;
            }
    }
    void SleepUntil(Moment end) override { m_system.m_time.AdvanceTo(end); }

private:
    VirtualSystem& m_system;
    wxDateTime m_start = wxDateTime::UNow();
};

VirtualSystem::VirtualSystem() : m_clock(std::make_unique<SystemClock>(*this)) {
    current = this;
    UseTransferSystem(this);
}

VirtualSystem::~VirtualSystem() {
    UseTransferSystem(nullptr);
    current = nullptr;
}

VirtualSystem* VirtualSystem::Current() {
    return current;
}

std::string VirtualSystem::Add(std::shared_ptr<VirtualPort> port) {
    std::string name = "virtual port " + std::to_string(++m_added);
    m_ports[name] = std::move(port);
    return name;
}

bool VirtualSystem::IsFree(const std::string& portName) const {
    const auto found = m_ports.find(portName);
    return found != m_ports.end() && found->second->isThere && !found->second->isOpen;
}

TransferClock& VirtualSystem::Clock() {
    return *m_clock;
}

std::unique_ptr<TransferLine> VirtualSystem::Open(wxWindow* window, const wxString& portName,
                                                  unsigned int baudRate) {
    const auto found = m_ports.find(portName.utf8_string());
    if (found == m_ports.end())
        return std::make_unique<wxAsyncSerial>(window, portName, baudRate);
    m_opened = found->second;
    return std::make_unique<VirtualLine>(m_opened, baudRate);
}

} // namespace transfertest
