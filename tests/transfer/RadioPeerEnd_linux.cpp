#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/RadioPeerEnd.h"

#include <map>
#include <memory>
#include <thread>
#include <utility>

namespace transfertest {

using std::chrono::milliseconds;

namespace {

class RealEnd : public RadioPeerEnd {
public:
    RealEnd() { m_port.HoldSlave(); }
    ~RealEnd() override { RealEnd::Finish(); }

    void Start(std::function<void()> play) override { m_thread = std::thread(std::move(play)); }
    void Finish() override {
        if (m_thread.joinable())
            m_thread.join();
    }
    const std::string& PortName() const override { return m_port.SlaveName(); }
    int Speed() const override {
        static const std::map<speed_t, int> speeds = {{B9600, 9600}, {B115200, 115200}};
        const auto found = speeds.find(m_port.Speed());
        return found == speeds.end() ? 0 : found->second;
    }
    std::string Read(size_t count, milliseconds limit) override { return m_port.Read(count, limit); }
    std::string ReadLine(milliseconds limit) override { return m_port.ReadUntil('\r', limit); }
    void Write(const std::string& text) override { m_port.Write(text); }
    void Pause(milliseconds time) override { std::this_thread::sleep_for(time); }
    void Vanish() override {
        m_port.ReleaseSlave();
        m_port.CloseMaster();
    }

private:
    PseudoTerminal m_port;
    std::thread m_thread;
};

} // namespace

std::unique_ptr<RadioPeerEnd> MakeRealEnd() {
    return std::make_unique<RealEnd>();
}

} // namespace transfertest
