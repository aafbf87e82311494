#include "simulator/FaultyLink.h"
#include "simulator/Player.h"
#include "simulator/PortMaker.h"
#include "simulator/RadioMaker.h"
#include "simulator/Requests_windows.h"
#include "tests/transfer/PortPair_windows.h"
#include "tests/transfer/RadioPlayer.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

namespace transfertest {

namespace {

/// In a thread of this process, at the radio's port of a pair.
class PairPlayer : public RadioPlayer, private Simulator::Journal {
public:
    PairPlayer(const std::string& model, const std::vector<std::string>& options, const std::string& memories)
        : RadioPlayer(model, options, memories) {
        m_arguments.insert(m_arguments.end(), {"--port", m_ports.radio});
        Require(Simulator::ParseOptions(m_arguments, m_options));
        Require(Open(LogFile()));
        m_link.emplace(Simulator::FaultPlan(m_options.faults), m_options.late, m_output,
                       static_cast<Simulator::Journal&>(*this));
        Require(Simulator::MakeRadio(m_options, *m_link, m_radio));
        m_port = Simulator::OpenPort(m_options);
        m_thread = std::thread([this] {
            Simulator::Player(*m_port, *m_radio, *m_link, m_output, *this, m_replyTimes, m_options.pace,
                              m_options.once)
                .Run(m_requests);
        });
    }
    ~PairPlayer() override { Stop(); }

    std::string PortName() const override { return m_ports.program; }

    int SwitchOff() override {
        Stop();
        Require(m_radio->Store());
        return m_radio->Violations() > 0 ? 3 : 0;
    }

    std::string Complaints() const override {
        const std::lock_guard lock(m_mutex);
        return m_complaints;
    }

    /// A radio at a port takes silence for a close.
    void AwaitClosedPort() override {
        for (int tries = 0; tries < 1500 && m_thread.joinable() &&
                            !testbench::ReadFileIfAny(LogFile()).ends_with("line quiet\n");
             ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }

    void WhenLogged(const std::string&, std::function<void()>) override {
        throw std::logic_error("only in virtual time");
    }

private:
    static void Require(const Simulator::Failure& failure) {
        if (failure)
            throw std::runtime_error(*failure);
    }

    void Complain(std::string_view text) override {
        Note("? " + std::string(text));
        const std::lock_guard lock(m_mutex);
        m_complaints += "zelk-radio: " + std::string(text) + "\n";
    }

    void Stop() {
        if (!m_thread.joinable())
            return;
        SetEvent(m_requests.Watched().stop);
        m_thread.join();
        m_port.reset();
    }

    PortPair m_ports;
    Simulator::Options m_options;
    Simulator::OutputQueue m_output;
    Simulator::ReplyTimes m_replyTimes;
    Simulator::Requests m_requests;
    std::optional<Simulator::FaultyLink> m_link;
    std::unique_ptr<Simulator::Radio> m_radio;
    std::unique_ptr<Simulator::Port> m_port;
    mutable std::mutex m_mutex;
    std::string m_complaints;
    std::thread m_thread;
};

} // namespace

std::unique_ptr<RadioPlayer> MakeRadioProcess(const std::string& model,
                                              const std::vector<std::string>& options,
                                              const std::string& memories) {
    return std::make_unique<PairPlayer>(model, options, memories);
}

} // namespace transfertest
