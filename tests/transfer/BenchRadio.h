// A simulated digital radio in the test's own process, on a port that the program opens.
#pragma once

#include "simulator/DigitalRadio.h"
#include "simulator/PseudoTerminal.h"

#include <poll.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

namespace transfertest {

/// Runs without pacing and pauses, so that thousands of transfers take minutes. All members may be called
/// from the test's thread.
class BenchRadio : private Simulator::RadioLink {
public:
    BenchRadio(const char* model, const std::string& stamp)
        : m_radio(*Simulator::FindDigitalModel(model, ""), Habits(model, stamp), {}, *this),
          m_thread([this] { Run(); }) {}
    ~BenchRadio() override {
        m_ends = true;
        m_thread.join();
    }

    const std::string& PortName() const { return m_port.DeviceName(); }

    Simulator::DigitalMemoryList Memories() const {
        const std::lock_guard lock(m_mutex);
        return m_radio.Memories();
    }
    std::string Stamp() const {
        const std::lock_guard lock(m_mutex);
        return m_radio.Stamp();
    }
    int Violations() const {
        const std::lock_guard lock(m_mutex);
        return m_radio.Violations();
    }
    /// Number of purges so far.
    int Purges() const {
        const std::lock_guard lock(m_mutex);
        return m_purges;
    }
    /// Complaints about what it refused, one a line.
    std::string Complaints() const {
        const std::lock_guard lock(m_mutex);
        return m_complaints;
    }

    /// What the radio does at a memory record of the next transfer, counted from 1, instead of storing it.
    enum class Fault { None, End, Silence };
    /// @param whenSilent called from the radio's thread when it falls silent
    void Expect(Fault fault, int record, std::function<void()> whenSilent = {}) {
        const std::lock_guard lock(m_mutex);
        m_fault = fault;
        m_faultAt = record;
        m_whenSilent = std::move(whenSilent);
    }

    /// Call after the program has closed the port. Reads its last bytes and gets ready for the next transfer.
    void EndVisit() {
        const std::lock_guard lock(m_mutex);
        m_port.TakeVisits();
        HearAll();
        m_radio.PortClosed();
        m_port.Flush();
        m_fault = Fault::None;
        m_silent = false;
    }

    /// Sets another stamp, as if a program had read the radio at another time.
    void SetStamp(const std::string& stamp) {
        const std::lock_guard lock(m_mutex);
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

    void Run() {
        constexpr int patience = 20; // ms
        while (!m_ends) {
            pollfd watched[] = {{IsOpen() ? m_port.Descriptor() : -1, POLLIN, 0},
                                {m_port.WatchDescriptor(), POLLIN, 0}};
            poll(watched, std::size(watched), patience);
            const std::lock_guard lock(m_mutex);
            m_port.TakeVisits();
            if (m_port.IsOpen())
                HearAll();
        }
    }
    bool IsOpen() const {
        const std::lock_guard lock(m_mutex);
        return m_port.IsOpen();
    }

    void HearAll() {
        for (std::string bytes = m_port.Read(4096); !bytes.empty(); bytes = m_port.Read(4096))
            Tell(bytes);
    }
    void Tell(const std::string& bytes) {
        m_radio.LineSpeed(m_port.Speed());
        for (const char byte : bytes)
            if (!m_silent)
                m_radio.Hear(static_cast<uint8_t>(byte));
    }

    void Say(std::string_view bytes) {
        while (!bytes.empty() && !m_mute && !m_silent)
            bytes.remove_prefix(m_port.Write(bytes));
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

    mutable std::mutex m_mutex; ///< protects all members below
    Simulator::PseudoTerminal m_port;
    Simulator::DigitalRadio m_radio;
    int m_answer = 1, m_purges = 0;
    std::string m_complaints;
    bool m_mute = false, m_silent = false;
    Fault m_fault = Fault::None;
    int m_faultAt = 0;
    std::function<void()> m_whenSilent;
    std::atomic<bool> m_ends = false;
    std::thread m_thread; ///< last: it uses the others
};

} // namespace transfertest
