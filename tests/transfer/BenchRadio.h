// A simulated digital radio on a virtual port, for thousands of transfers.
#pragma once

#include "simulator/DigitalRadio.h"
#include "tests/transfer/VirtualSystem.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace transfertest {

/// Answers at once. The test needs a VirtualSystem.
class BenchRadio : private Simulator::RadioLink {
public:
    BenchRadio(const char* model, const std::string& stamp)
        : m_portName(VirtualSystem::Current()->Add(m_port)),
          m_radio(*Simulator::FindDigitalModel(model, ""), Habits(model, stamp), {}, *this) {
        m_port->arrived = [this] { HearAll(); };
    }
    ~BenchRadio() override {
        m_port->arrived = {};
        m_port->isThere = false;
    }

    const std::string& PortName() const { return m_portName; }

    Simulator::DigitalMemoryList Memories() const { return m_radio.Memories(); }
    std::string Stamp() const { return m_radio.Stamp(); }
    int Violations() const { return m_radio.Violations(); }
    /// Number of purges so far.
    int Purges() const { return m_purges; }
    /// Complaints about what it refused, one a line.
    std::string Complaints() const { return m_complaints; }

    /// What the radio does at a memory record of the next transfer, counted from 1, instead of storing it.
    enum class Fault { None, End, Silence };
    /// @param whenSilent called when the radio falls silent
    void Expect(Fault fault, int record, std::function<void()> whenSilent = {}) {
        m_fault = fault;
        m_faultAt = record;
        m_whenSilent = std::move(whenSilent);
    }

    /// Call after the program has closed the port. Gets ready for the next transfer.
    void EndVisit() {
        m_radio.PortClosed();
        m_fault = Fault::None;
        m_silent = false;
    }

    /// Sets another stamp, as if a program had read the radio at another time.
    void SetStamp(const std::string& stamp) {
        m_mute = true;
        for (const std::string& body : {std::string("T007000020030000"), "T20B000021" + stamp})
            Tell(Simulator::WithChecksum(body) + "\r");
        Tell(Simulator::WithChecksum("T9030000") + "\r");
        m_mute = false;
    }

private:
    static Simulator::DigitalHabits Habits(const char* model, const std::string& stamp) {
        const Simulator::DigitalModel* found = Simulator::FindDigitalModel(model, "");
        if (!found)
            throw std::runtime_error("no such model");
        Simulator::DigitalHabits habits;
        habits.protocol = found->protocol;
        habits.firmware = found->firmware;
        habits.stamp = stamp;
        return habits;
    }

    void HearAll() { Tell(std::exchange(m_port->toRadio, {})); }
    void Tell(const std::string& bytes) {
        m_radio.LineSpeed(m_port->speed);
        for (const char byte : bytes)
            if (!m_silent)
                m_radio.Hear(static_cast<uint8_t>(byte));
    }

    void Say(std::string_view bytes) {
        if (!m_mute && !m_silent)
            m_port->toProgram += bytes;
    }

    // The cable, seen from the radio.
    void BeginTransfer() override { m_answer = 1; }
    void BeginAnswers() override { m_answer = 1; }
    int NextAnswer() const override { return m_answer; }
    bool Plays(Simulator::FaultKind kind, int answer) override {
        // The radio asks for this fault first, before it stores a record.
        if (kind != Simulator::FaultKind::End || m_fault == Fault::None || answer != m_faultAt)
            return false;
        if (m_fault == Fault::Silence && !m_silent) {
            m_silent = true;
            if (m_whenSilent)
                m_whenSilent();
        }
        return true;
    }
    void Answer(std::string_view bytes, Simulator::AnswerKind) override {
        ++m_answer;
        Say(bytes);
    }
    void Print(std::string_view bytes) override { Say(bytes); }
    void WaitForKey(std::chrono::milliseconds) override {}
    void EndTransfer() override {}
    void EndTransferWhenSent() override {}
    bool IsSending() const override { return false; }
    void Note(std::string_view text) override { m_purges += text == "< T204000011EA"; }
    void Complain(std::string_view text) override { m_complaints += std::string(text) + "\n"; }

    std::shared_ptr<VirtualPort> m_port = std::make_shared<VirtualPort>();
    std::string m_portName;
    Simulator::DigitalRadio m_radio;
    int m_answer = 1, m_purges = 0;
    std::string m_complaints;
    bool m_mute = false, m_silent = false;
    Fault m_fault = Fault::None;
    int m_faultAt = 0;
    std::function<void()> m_whenSilent;
};

} // namespace transfertest
