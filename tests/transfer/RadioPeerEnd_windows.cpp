#include "simulator/SerialPort.h"
#include "tests/transfer/PortPair_windows.h"
#include "tests/transfer/RadioPeerEnd.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <thread>
#include <utility>

namespace transfertest {

using std::chrono::milliseconds;

namespace {

/// The radio's port of a pair.
class RealEnd : public RadioPeerEnd {
public:
    RealEnd() : m_port(std::in_place, m_ports.radio) {}
    ~RealEnd() override { RealEnd::Finish(); }

    void Start(std::function<void()> play) override { m_thread = std::thread(std::move(play)); }
    void Finish() override {
        if (m_thread.joinable())
            m_thread.join();
    }
    const std::string& PortName() const override { return m_ports.program; }
    int Speed() const override { return 0; } // no port tells the other's
    std::string Read(size_t count, milliseconds limit) override {
        return Take(
            limit, [&] { return std::min(count, m_heard.size()); }, [&] { return m_heard.size() >= count; });
    }
    std::string ReadLine(milliseconds limit) override {
        const auto length = [&] { return std::min(m_heard.find('\r'), m_heard.size() - 1) + 1; };
        return Take(limit, length, [&] { return m_heard.find('\r') != std::string::npos; });
    }
    void Write(const std::string& text) override {
        for (size_t sent = 0; sent < text.size();)
            sent += m_port->Write(std::string_view(text).substr(sent));
    }
    void Pause(milliseconds time) override { std::this_thread::sleep_for(time); }
    void Vanish() override { m_port.reset(); }

private:
    template <class Length, class Ready>
    std::string Take(milliseconds limit, const Length& length, const Ready& ready) {
        const Simulator::TimePoint end = Simulator::Clock::now() + limit;
        while (m_port && !ready() && Simulator::Clock::now() < end) {
            m_port->Wait({.input = true, .room = false}, end, m_requests);
            m_heard += m_port->Read(std::numeric_limits<size_t>::max());
        }
        std::string text = m_heard.substr(0, length());
        m_heard.erase(0, text.size());
        return text;
    }

    PortPair m_ports;
    Simulator::Requests m_requests;
    std::optional<Simulator::SerialPort> m_port;
    std::string m_heard;
    std::thread m_thread;
};

} // namespace

std::unique_ptr<RadioPeerEnd> MakeRealEnd() {
    return std::make_unique<RealEnd>();
}

} // namespace transfertest
