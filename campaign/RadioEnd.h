// A simulated radio at the end of a cable, in virtual time.
#pragma once

#include "campaign/Cable.h"
#include "simulator/AnalogRadio.h"
#include "simulator/DigitalRadio.h"
#include "simulator/FaultyLink.h"
#include "simulator/Journal.h"
#include "simulator/OutputQueue.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Campaign {

/// What a radio is and holds. It has either a digital or an analog model.
struct RadioState {
    const Simulator::DigitalModel* digitalModel = nullptr;
    Simulator::DigitalHabits digitalHabits;
    Simulator::DigitalContents digital;
    const Simulator::AnalogModel* analogModel = nullptr;
    Simulator::AnalogHabits analogHabits;
    Simulator::MemoryList analog;

    bool IsDigital() const { return digitalModel != nullptr; }
    bool HoldsTheSame(const RadioState& other) const;
};

/// Plays the radio. The faults are those of the cable.
class RadioEnd {
public:
    using Listener = std::function<void(std::string_view)>;

    /// `time` and `cable` must outlive the radio. `listener` gets the radio's log; it may be empty.
    RadioEnd(VirtualTime& time, Cable& cable, const RadioState& state, Listener listener);
    ~RadioEnd();

    /// What the radio holds now.
    RadioState State() const;
    int Violations() const { return m_radio->Violations(); }
    /// Complaints about the program, one a line.
    const std::string& Complaints() const { return m_complaints; }
    int Answers() const { return m_link.NextAnswer() - 1; }
    /// The user presses the key that the radio waits for.
    void PressKey();
    void Hear(uint8_t byte, int baud);
    void Restart();
    void Leave();

private:
    class Log : public Simulator::Journal {
    public:
        explicit Log(RadioEnd& owner) : m_owner(owner) {}
        void Note(std::string_view text) override;
        void Complain(std::string_view text) override;

    private:
        RadioEnd& m_owner;
    };
    class Link;

    void Pump();

    VirtualTime& m_time;
    Cable& m_cable;
    RadioState m_state;
    Listener m_listener;
    Log m_log{*this};
    Simulator::OutputQueue m_output;
    Simulator::FaultyLink m_link;
    std::unique_ptr<Link> m_faults;
    std::unique_ptr<Simulator::Radio> m_radio;
    Simulator::DigitalRadio* m_digital = nullptr; ///< m_radio, if it is one
    Simulator::AnalogRadio* m_analog = nullptr;   ///< m_radio, if it is one
    std::string m_complaints;
    std::optional<Moment> m_due; ///< of the next Pump
    Moment m_deafUntil{};
};

} // namespace Campaign
