#include "tests/transfer/RadioUnderTest.h"

#include "robot/Files.h"
#include "simulator/FaultyLink.h"
#include "simulator/Journal.h"
#include "simulator/Options.h"
#include "simulator/OutputQueue.h"
#include "simulator/RadioMaker.h"
#include "tests/transfer/RadioPlayer.h"
#include "tests/transfer/VirtualSystem.h"

#include <optional>
#include <stdexcept>
#include <utility>

namespace transfertest {

/// In the test's process, at a virtual port.
class RadioUnderTest::VirtualPlayer : public RadioPlayer, private Simulator::Journal {
public:
    VirtualPlayer(VirtualSystem& system, const std::string& model, const std::vector<std::string>& options,
                  const std::string& memories)
        : RadioPlayer(model, options, memories), m_time(system.Time()), m_name(system.Add(m_port)) {
        Require(Simulator::ParseOptions(m_arguments, m_options));
        Require(Open(LogFile()));
        m_link.emplace(Simulator::FaultPlan(m_options.faults), m_options.late, m_output,
                       static_cast<Simulator::Journal&>(*this));
        Require(Simulator::MakeRadio(m_options, *m_link, m_radio));
        m_port->opened = [this] { Note("- port opened"); };
        // The radio hears the bytes when the program waits.
        m_port->arrived = [this] { Later(m_time.Now(), &VirtualPlayer::Hear); };
        m_port->closed = [this] { Leave(); };
    }
    ~VirtualPlayer() override {
        *m_alive = false;
        m_port->opened = m_port->arrived = m_port->closed = {};
        m_port->isThere = false;
    }

    std::string PortName() const override { return m_name; }

    int SwitchOff() override {
        m_port->isThere = false;
        Require(m_radio->Store());
        return m_radio->Violations() > 0 ? 3 : 0;
    }

    std::string Complaints() const override { return m_complaints; }
    void AwaitClosedPort() override {}

    void WhenLogged(const std::string& text, std::function<void()> action) override {
        m_awaited = text;
        m_action = std::move(action);
    }

private:
    static void Require(const Simulator::Failure& failure) {
        if (failure)
            throw std::runtime_error(*failure);
    }

    void Note(std::string_view text) override {
        Journal::Note(text);
        if (m_action && text.find(m_awaited) != std::string_view::npos)
            std::exchange(m_action, {})();
    }
    void Complain(std::string_view text) override {
        Note("? " + std::string(text));
        m_complaints += "zelk-radio: " + std::string(text) + "\n";
    }

    /// Calls a member at that time, if the radio still exists by then.
    void Later(Campaign::Moment when, void (VirtualPlayer::*what)()) {
        m_time.At(when, [this, what, alive = m_alive] {
            if (*alive)
                (this->*what)();
        });
    }

    void Hear() {
        m_radio->LineSpeed(m_port->speed);
        for (const char byte : std::exchange(m_port->toRadio, {}))
            if (!m_link->IsDead())
                m_radio->Hear(static_cast<uint8_t>(byte));
        Deliver();
    }

    /// Sends what is due, and comes back when more is.
    void Deliver() {
        while (m_port->isOpen && m_port->isThere) {
            const Simulator::OutputQueue::Delivery delivery =
                m_output.Take(m_time.Now(), m_options.pace ? m_port->speed : 0);
            for (const std::string& note : delivery.notes)
                Note(note);
            if (delivery.vanish)
                m_port->isThere = false;
            if (delivery.bytes.empty())
                break;
            m_port->toProgram += delivery.bytes;
        }
        const auto next = m_output.NextDue();
        const bool isKnown = next && m_due && *m_due <= *next && *m_due > m_time.Now();
        if (!next || isKnown || !m_port->isOpen || !m_port->isThere)
            return;
        m_due = *next;
        Later(*next, &VirtualPlayer::Deliver);
    }

    void Leave() {
        if (m_port->isThere)
            Hear();
        m_output.Clear();
        m_radio->PortClosed();
        m_link->PortClosed();
        Note("- port closed");
    }

    Campaign::VirtualTime& m_time;
    std::shared_ptr<VirtualPort> m_port = std::make_shared<VirtualPort>();
    std::string m_name;
    Simulator::Options m_options;
    Simulator::OutputQueue m_output;
    std::optional<Simulator::FaultyLink> m_link;
    std::unique_ptr<Simulator::Radio> m_radio;
    std::optional<Campaign::Moment> m_due; ///< of the next Deliver
    std::string m_complaints, m_awaited;
    std::function<void()> m_action;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

RadioUnderTest::RadioUnderTest(const std::string& model, const std::vector<std::string>& options,
                               const std::string& memories) {
    if (VirtualSystem* system = VirtualSystem::Current())
        m_player = std::make_unique<VirtualPlayer>(*system, model, options, memories);
    else
        m_player = MakeRadioProcess(model, options, memories);
}

RadioUnderTest::~RadioUnderTest() = default;

std::string RadioUnderTest::PortName() const {
    return m_player->PortName();
}

int RadioUnderTest::SwitchOff() {
    return m_player->SwitchOff();
}

std::map<std::string, std::string> RadioUnderTest::Memories() {
    std::map<std::string, std::string> memories;
    for (const std::string& line : MemoryLines())
        memories[line.substr(0, 3)] = line;
    return memories;
}

std::map<int, std::string> RadioUnderTest::Records() {
    std::map<int, std::string> records;
    for (const std::string& line : MemoryLines())
        records[std::stoi(line.substr(6, 4), nullptr, 16)] = line;
    return records;
}

std::string RadioUnderTest::Log() const {
    return testbench::ReadFileIfAny(m_player->LogFile());
}

void RadioUnderTest::WhenLogged(const std::string& text, std::function<void()> action) {
    m_player->WhenLogged(text, std::move(action));
}

std::string RadioUnderTest::Complaints() const {
    return m_player->Complaints();
}

void RadioUnderTest::AwaitClosedPort() {
    m_player->AwaitClosedPort();
}

std::vector<std::string> RadioUnderTest::MemoryLines() {
    SwitchOff();
    std::vector<std::string> lines;
    for (const std::string& line : testbench::ReadLines(m_player->MemoryFile()))
        if (!line.empty() && line[0] != '#')
            lines.push_back(line);
    return lines;
}

} // namespace transfertest
