#include "campaign/RadioEnd.h"

#include "simulator/DigitalLists.h"
#include "simulator/HexRecord.h"

#include <algorithm>
#include <utility>

namespace Campaign {

namespace {

/// How late a late acknowledgement is. Shorter than the drivers' time-outs for acknowledgements.
constexpr std::chrono::milliseconds Late{3000};

Simulator::FaultPlan PlanOf(const std::vector<Fault>& faults) {
    std::vector<Simulator::Fault> plan;
    for (const Fault& fault : faults)
        if (const auto kind = PlanKind(fault.kind))
            plan.push_back({*kind, fault.at});
    return Simulator::FaultPlan(std::move(plan));
}

} // namespace

bool RadioState::HoldsTheSame(const RadioState& other) const {
    return digital.memories == other.digital.memories && digital.config == other.digital.config &&
           analog == other.analog;
}

/// Plays the faults of messages, and passes everything else on.
class RadioEnd::Link : public Simulator::RadioLink {
public:
    Link(Simulator::FaultyLink& link, Cable& cable, bool digital)
        : m_link(link), m_cable(cable), m_digital(digital) {}

    void BeginTransfer() override { m_link.BeginTransfer(); }
    void BeginDialogue() override { m_link.BeginDialogue(); }
    void BeginAnswers() override { m_link.BeginAnswers(); }
    int NextAnswer() const override { return m_link.NextAnswer(); }
    bool Plays(Simulator::FaultKind kind, int answer) override { return m_link.Plays(kind, answer); }
    void Pause(std::chrono::milliseconds time) override { m_link.Pause(time); }
    void WaitForKey(std::chrono::milliseconds patience) override { m_link.WaitForKey(patience); }
    void EndTransfer() override { m_link.EndTransfer(); }
    void EndTransferWhenSent() override { m_link.EndTransferWhenSent(); }
    bool IsSending() const override { return m_link.IsSending(); }
    void Note(std::string_view text) override { m_link.Note(text); }
    void Complain(std::string_view text) override { m_link.Complain(text); }

    void Answer(std::string_view bytes, Simulator::AnswerKind kind) override {
        m_link.Answer(Faulty(bytes), kind);
        AfterMessage(bytes);
    }
    void Print(std::string_view bytes) override {
        m_link.Print(Faulty(bytes));
        AfterMessage(bytes);
    }

private:
    const Fault* Due(FaultKind kind) {
        const std::vector<Fault>& faults = m_cable.Faults();
        for (size_t i = 0; i < faults.size(); ++i)
            if (faults[i].kind == kind && faults[i].at == m_message) {
                m_cable.MarkHappened(i);
                m_link.Note(std::string("! ") + TextOf(faults[i]));
                return &faults[i];
            }
        return nullptr;
    }

    std::string Faulty(std::string_view bytes) {
        if (const Fault* busy = m_digital ? Due(FaultKind::BusyFor) : nullptr) {
            m_link.Print(Simulator::WithChecksum("T204000002") + "\r");
            m_link.Pause(std::chrono::milliseconds(busy->value));
        }
        if (m_digital && (m_babbles || Due(FaultKind::Babble))) {
            m_babbles = true;
            return Simulator::WithChecksum(Simulator::TextRecord("MEMORY FULL OF NOTHING")) + "\r";
        }
        if (m_message > 0 && Due(FaultKind::LineBefore))
            return m_last;
        return std::string(bytes);
    }

    void AfterMessage(std::string_view bytes) {
        if (Due(FaultKind::Twice))
            m_link.Print(bytes);
        m_last = bytes;
        ++m_message;
    }

    Simulator::FaultyLink& m_link;
    Cable& m_cable;
    bool m_digital;
    bool m_babbles = false;
    int m_message = 0;
    std::string m_last;
};

void RadioEnd::Log::Note(std::string_view text) {
    // A played fault is noted as "! name@answer".
    if (text.starts_with("! ")) {
        const std::vector<Fault>& faults = m_owner.m_cable.Faults();
        for (size_t i = 0; i < faults.size(); ++i)
            if (const auto kind = PlanKind(faults[i].kind);
                kind && text.substr(2) == Simulator::FaultText({*kind, faults[i].at}))
                m_owner.m_cable.MarkHappened(i);
    }
    if (m_owner.m_listener)
        m_owner.m_listener(text);
}

void RadioEnd::Log::Complain(std::string_view text) {
    m_owner.m_complaints += std::string(text) + "\n";
    if (m_owner.m_listener)
        m_owner.m_listener("? " + std::string(text));
}

RadioEnd::RadioEnd(VirtualTime& time, Cable& cable, const RadioState& state, Listener listener)
    : m_time(time), m_cable(cable), m_state(state), m_listener(std::move(listener)),
      m_link(PlanOf(cable.Faults()), Late, m_output, m_log),
      m_faults(std::make_unique<Link>(m_link, cable, state.IsDigital())) {
    if (state.IsDigital()) {
        auto radio = std::make_unique<Simulator::DigitalRadio>(*state.digitalModel, state.digitalHabits,
                                                               state.digital, *m_faults);
        m_digital = radio.get();
        m_radio = std::move(radio);
    } else {
        auto radio = std::make_unique<Simulator::AnalogRadio>(*state.analogModel, state.analogHabits,
                                                              state.analog, *m_faults);
        m_analog = radio.get();
        m_radio = std::move(radio);
    }
}

RadioEnd::~RadioEnd() = default;

RadioState RadioEnd::State() const {
    RadioState state = m_state;
    if (m_digital) {
        state.digital.memories = m_digital->Memories();
        state.digital.config = m_digital->Config();
        state.digitalHabits.stamp = m_digital->Stamp();
    } else {
        state.analog = m_analog->Memories();
    }
    return state;
}

void RadioEnd::PressKey() {
    m_log.Note("- key pressed");
    m_output.PressKey();
    Pump();
}

void RadioEnd::Hear(uint8_t byte, int baud) {
    if (m_link.IsDead() || m_time.Now() < m_deafUntil)
        return;
    m_radio->LineSpeed(baud);
    m_radio->Hear(byte);
    Pump();
}

void RadioEnd::Restart() {
    m_log.Note("! restart");
    const std::vector<Fault>& faults = m_cable.Faults();
    for (const Fault& fault : faults)
        if (fault.kind == FaultKind::Restart)
            m_deafUntil = std::max(m_deafUntil, m_time.Now() + std::chrono::milliseconds(fault.value));
    m_output.Clear();
    m_radio->PortClosed();
}

void RadioEnd::Leave() {
    m_output.Clear();
    m_radio->PortClosed();
    m_link.PortClosed();
    m_log.Note("- port closed");
}

/// Sends what is due, and comes back when more is.
void RadioEnd::Pump() {
    while (m_cable.IsOpen()) {
        const Simulator::OutputQueue::Delivery delivery = m_output.Take(m_time.Now(), m_cable.Speed());
        for (const std::string& note : delivery.notes)
            m_log.Note(note);
        if (delivery.vanish) {
            m_cable.Unplug();
            return;
        }
        if (delivery.bytes.empty())
            break;
        m_cable.TakeFromRadio(delivery.bytes);
    }
    const std::optional<Moment> next = m_output.NextDue();
    if (!next || (m_due && *m_due <= *next && *m_due > m_time.Now()))
        return;
    m_due = std::max(*next, m_time.Now());
    m_time.At(*m_due, [this] {
        m_due.reset();
        Pump();
    });
}

} // namespace Campaign
