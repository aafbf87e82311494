#include "tests/transfer/RadioPeer.h"

#include "tests/transfer/RadioPeerEnd.h"
#include "transfer/wxAsyncSerial.h"

#include <chrono>
#include <memory>
#include <optional>
#include <utility>

namespace transfertest {

using std::chrono::milliseconds;

class RadioPeer::VirtualEnd : public RadioPeerEnd {
public:
    explicit VirtualEnd(VirtualSystem& system) : m_time(system.Time()), m_name(system.Add(m_port)) {}
    ~VirtualEnd() override {
        m_port->arrived = {};
        m_port->isThere = false;
    }

    void Start(std::function<void()> play) override {
        m_actor.emplace(m_time, std::move(play));
        m_port->arrived = [this] { m_actor->Wake(); };
    }
    void Finish() override { m_actor->Finish(); }
    const std::string& PortName() const override { return m_name; }
    int Speed() const override { return m_port->speed; }
    std::string Read(size_t count, milliseconds limit) override {
        WaitUntil(limit, [&] { return m_port->toRadio.size() >= count; });
        return Take(count);
    }
    std::string ReadLine(milliseconds limit) override {
        const auto end = [&] { return m_port->toRadio.find('\r'); };
        WaitUntil(limit, [&] { return end() != std::string::npos; });
        return Take(end() == std::string::npos ? end() : end() + 1);
    }
    void Write(const std::string& text) override { m_port->toProgram += text; }
    void Pause(milliseconds time) override {
        WaitUntil(time, [] { return false; });
    }
    void Vanish() override { m_port->isThere = false; }

private:
    void WaitUntil(milliseconds limit, const std::function<bool()>& ready) {
        // The script has ended if the test itself reads.
        if (!m_actor->HasEnded())
            m_actor->Wait(m_time.Now() + limit, ready);
    }
    std::string Take(size_t count) {
        std::string text = m_port->toRadio.substr(0, count);
        m_port->toRadio.erase(0, count);
        return text;
    }

    Campaign::VirtualTime& m_time;
    std::shared_ptr<VirtualPort> m_port = std::make_shared<VirtualPort>();
    std::string m_name;
    std::optional<Actor> m_actor;
};

RadioPeer::RadioPeer(std::function<void(RadioPeer&)> script) {
    if (VirtualSystem* system = VirtualSystem::Current())
        m_end = std::make_unique<VirtualEnd>(*system);
    else
        m_end = MakeRealEnd();
    m_end->Start([this, play = std::move(script)] { play(*this); });
}

RadioPeer::~RadioPeer() {
    Finish();
}

void RadioPeer::Finish() {
    m_end->Finish();
}

const std::string& RadioPeer::PortName() const {
    return m_end->PortName();
}

int RadioPeer::Speed() const {
    return m_end->Speed();
}

std::string RadioPeer::Hear(size_t count, int ms) {
    std::string text = m_end->Read(count, milliseconds(ms));
    m_heard += text;
    return text;
}

std::string RadioPeer::HearLine(int ms) {
    std::string text = m_end->ReadLine(milliseconds(ms));
    m_heard += text;
    return text;
}

void RadioPeer::Say(const std::string& text) {
    m_end->Write(text);
}

void RadioPeer::Pause(int ms) {
    m_end->Pause(milliseconds(ms));
}

void RadioPeer::Vanish() {
    m_end->Vanish();
}

std::string RadioPeer::Rest() {
    Finish();
    return m_end->Read(10000, milliseconds(100));
}

bool PortIsFree(const std::string& portName) {
    const VirtualSystem* system = VirtualSystem::Current();
    if (system && system->Has(portName))
        return system->IsFree(portName);
    const wxAsyncSerial again(nullptr, portName, 9600);
    return again.isOpen();
}

} // namespace transfertest
