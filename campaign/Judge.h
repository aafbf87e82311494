// Looks at the outcome of one transfer and collects what it finds wrong.
#pragma once

#include "campaign/Dialogue.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace Campaign {

/// Checks of every transfer, with faults or without. The job, the world and the outcome must outlive it.
class Judge {
public:
    Judge(const Scenario& scenario, const Job& job, const World& before, const Outcome& outcome)
        : m_job(job), m_before(before), m_outcome(outcome), m_digital(scenario.radio.IsDigital()) {}

    /// A sentence for each broken condition.
    const std::vector<std::string>& Broken() const { return m_broken; }
    void Expect(bool condition, const std::string& otherwise) {
        if (!condition)
            m_broken.push_back(otherwise);
    }

    bool Digital() const { return m_digital; }
    bool Happened(std::initializer_list<FaultKind> kinds) const { return Count(kinds) > 0; }
    /// How many faults of these kinds happened.
    int Count(std::initializer_list<FaultKind> kinds) const;
    /// How many faults happened.
    int Count() const;
    /// The fault that happened, if it was the only one; null otherwise.
    const Fault* Only() const;

    /// Port, window and logs are left as they must be, and the transfer ended in time.
    void CheckEnd();
    /// Box and window say what the status says, and the radio was told the end.
    void CheckTexts();
    /// The zone counters fit the rows.
    void CheckZones();
    /// The pauses that the protocols prescribe were kept.
    void CheckPauses();
    /// A write changes nothing on the page but transfer flags.
    void CheckPageOfWrite();

private:
    void ExpectNoFailureBox();
    void CheckLastWords();
    void CheckDigitalPauses();
    void CheckAnalogPauses();

    const Job& m_job;
    const World& m_before;
    const Outcome& m_outcome;
    bool m_digital;
    std::vector<std::string> m_broken;
};

/// Milliseconds from the last byte to the time-out of a dialogue.
int64_t SilenceUntilTimeout(bool digital);

} // namespace Campaign
