// Cable of a simulated radio, with the requested faults.
#pragma once

#include "simulator/FaultPlan.h"
#include "simulator/Journal.h"
#include "simulator/OutputQueue.h"
#include "simulator/Radio.h"

namespace Simulator {

/// Passes the radio's output to the output and plays the plan's faults on it.
class FaultyLink : public RadioLink {
public:
    /// `output` and `journal` must outlive the link. `late` is the delay of a late acknowledgement.
    FaultyLink(FaultPlan plan, std::chrono::milliseconds late, OutputQueue& output, Journal& journal);

    void BeginTransfer() override;
    void BeginDialogue() override;
    void BeginAnswers() override { DieIfNext(); }
    int NextAnswer() const override { return m_answer + 1; }
    bool Plays(FaultKind kind, int answer) override;
    void Pause(std::chrono::milliseconds duration) override;
    void Answer(std::string_view bytes, AnswerKind kind) override;
    void Print(std::string_view bytes) override;
    void WaitForKey(std::chrono::milliseconds patience) override;
    void EndTransfer() override;
    void EndTransferWhenSent() override;
    bool IsSending() const override { return !m_output.IsEmpty(); }
    void Note(std::string_view text) override { m_journal.Note(text); }
    void Complain(std::string_view text) override { m_journal.Complain(text); }

    /// True while the radio plays dead: it neither receives nor sends.
    bool IsDead() const { return m_dead; }
    /// Call when the other side has closed the port. A dead radio works again.
    void PortClosed() { m_dead = false; }

private:
    void AnswerLine(std::string_view bytes);
    void AnswerAcknowledgement(std::string_view bytes, AnswerKind kind);
    void MakeNoise(AnswerKind kind);
    const Fault* Due(FaultKind kind) const { return m_plan.Find(kind, m_transfer, m_answer); }
    void DieIfNext();

    FaultPlan m_plan;
    std::chrono::milliseconds m_late;
    OutputQueue& m_output;
    Journal& m_journal;
    int m_transfer = 0;
    int m_answer = 0; // the current answer, from 1
    bool m_dead = false;
};

} // namespace Simulator
