#include "simulator/FaultyLink.h"

#include <iterator>

namespace Simulator {

namespace {

// Contains neither an acknowledgement (05) nor a line end (0D): noise must not look like an answer.
constexpr unsigned char Garbage[] = {0x00, 0xFF, 0x80, 0x1B, 0xFE, 0x7F, 0x00, 0xF5};
constexpr char MarkedReturn = '\x8D'; // a carriage return whose bit 7 is set
constexpr size_t Pieces = 4;
constexpr std::chrono::milliseconds PieceGap{150};

std::string Played(const Fault& fault) {
    return "! " + FaultText(fault);
}

/// Log entry of a message: its text without the line end.
std::string Sent(std::string_view bytes) {
    if (bytes.ends_with('\r'))
        bytes.remove_suffix(1);
    return "> " + std::string(bytes);
}

} // namespace

FaultyLink::FaultyLink(FaultPlan plan, std::chrono::milliseconds late, OutputQueue& output, Journal& journal)
    : m_plan(std::move(plan)), m_late(late), m_output(output), m_journal(journal) {}

void FaultyLink::BeginDialogue() {
    ++m_transfer;
    m_answer = 0;
}

void FaultyLink::BeginTransfer() {
    BeginDialogue();
    BeginAnswers();
}

bool FaultyLink::Plays(FaultKind kind, int answer) {
    const Fault* fault = m_dead ? nullptr : m_plan.Find(kind, m_transfer, answer);
    if (fault)
        m_journal.Note(Played(*fault));
    return fault != nullptr;
}

void FaultyLink::Pause(std::chrono::milliseconds duration) {
    if (!m_dead)
        m_output.Pause(duration, "");
}

void FaultyLink::DieIfNext() {
    if (const Fault* fault = m_plan.Find(FaultKind::Silence, m_transfer, m_answer + 1)) {
        m_dead = true;
        m_journal.Note(Played(*fault));
    }
}

void FaultyLink::Answer(std::string_view bytes, AnswerKind kind) {
    if (m_dead)
        return;
    ++m_answer;
    if (const Fault* fault = Due(FaultKind::Unplug)) {
        m_output.Vanish(Played(*fault));
        m_dead = true;
        return;
    }
    MakeNoise(kind);
    if (kind == AnswerKind::Line || kind == AnswerKind::Record)
        AnswerLine(bytes);
    else
        AnswerAcknowledgement(bytes, kind);
    DieIfNext();
}

void FaultyLink::MakeNoise(AnswerKind kind) {
    const Fault* fault = Due(FaultKind::Noise);
    if (!fault)
        return;
    std::string noise(std::begin(Garbage), std::end(Garbage));
    // Readers recognise a record by its first letter at the start of a line, so noise needs a line end.
    if (kind == AnswerKind::Record || kind == AnswerKind::RecordAcknowledgement)
        noise += '\r';
    m_output.Say(noise, Played(*fault));
}

void FaultyLink::AnswerLine(std::string_view bytes) {
    std::string line(bytes);
    if (const Fault* fault = Due(FaultKind::Cut)) {
        const char end = line.ends_with(MarkedReturn) ? MarkedReturn : '\r';
        line = line.substr(0, line.size() / 2) + end;
        m_journal.Note(Played(*fault));
    }
    const Fault* torn = Due(FaultKind::Torn);
    if (!torn) {
        m_output.Say(line, Sent(line));
        return;
    }
    const size_t piece = line.size() / Pieces + 1;
    for (size_t at = 0; at < line.size(); at += piece) {
        if (at > 0)
            m_output.Pause(PieceGap, at == piece ? Played(*torn) : "");
        const bool last = at + piece >= line.size();
        m_output.Say(line.substr(at, piece), last ? Sent(line) : "");
    }
}

void FaultyLink::AnswerAcknowledgement(std::string_view bytes, AnswerKind kind) {
    if (const Fault* fault = Due(FaultKind::NoAck)) {
        m_journal.Note(Played(*fault));
        return;
    }
    if (const Fault* fault = Due(FaultKind::LateAck))
        m_output.Pause(m_late, Played(*fault));
    if (kind == AnswerKind::RecordAcknowledgement)
        AnswerLine(bytes);
    else
        m_output.Say(std::string(bytes), Sent(bytes));
}

void FaultyLink::Print(std::string_view bytes) {
    if (!m_dead)
        m_output.Say(std::string(bytes), Sent(bytes));
}

void FaultyLink::WaitForKey(std::chrono::milliseconds patience) {
    if (!m_dead)
        m_output.AwaitKey(patience);
}

void FaultyLink::EndTransfer() {
    if (!m_dead)
        m_output.CountCompleted();
}

void FaultyLink::EndTransferWhenSent() {
    if (!m_dead)
        m_output.Complete();
}

} // namespace Simulator
