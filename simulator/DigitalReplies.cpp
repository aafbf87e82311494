#include "simulator/DigitalReplies.h"

#include "simulator/HexRecord.h"

namespace Simulator {

namespace {

constexpr std::string_view Ack = "T204000000";
constexpr std::string_view Nak = "T204000001";
constexpr std::string_view Wait = "T204000002";
constexpr std::chrono::milliseconds Patience{500};

} // namespace

void DigitalReplies::BeginDialogue() {
    m_refused = 0;
    m_link.BeginDialogue();
}

std::string DigitalReplies::Line(std::string_view body, int answer, bool spoiled) {
    std::string line = WithChecksum(body);
    if (spoiled)
        line.back() = line.back() == '0' ? '1' : '0';
    return line + (m_link.Plays(FaultKind::LineFeed, answer) ? "\r\n" : "\r");
}

void DigitalReplies::Say(std::string_view body) {
    m_link.Print(Line(body, m_link.NextAnswer()));
}

void DigitalReplies::SayAck() {
    Say(Ack);
}

void DigitalReplies::SayNak() {
    Say(Nak);
}

void DigitalReplies::SayEnd() {
    Say("T9030000");
}

void DigitalReplies::MaybeBusy() {
    if (!m_link.Plays(FaultKind::Busy, m_link.NextAnswer()))
        return;
    Say(Wait);
    m_link.Pause(Patience);
}

DigitalReplies::Instead DigitalReplies::NextInstead() {
    const int answer = m_link.NextAnswer();
    if (m_link.Plays(FaultKind::End, answer))
        return Instead::End;
    if (m_link.Plays(FaultKind::NakAlways, answer))
        return Instead::Nak;
    if (m_refused == answer || !m_link.Plays(FaultKind::Nak, answer))
        return Instead::Nothing;
    m_refused = answer;
    return Instead::Nak;
}

void DigitalReplies::AnswerLine(std::string_view body, AnswerKind kind) {
    const int answer = m_link.NextAnswer();
    const bool spoiled =
        m_link.Plays(FaultKind::Checksum, answer) || m_link.Plays(FaultKind::ChecksumAlways, answer);
    if (m_link.Plays(FaultKind::Wait, answer)) {
        Say(Wait);
        m_link.Pause(Patience);
    }
    const std::string before = m_link.Plays(FaultKind::Joined, answer) ? Line(Wait, answer) : "";
    m_link.Answer(before + Line(body, answer, spoiled), kind);
}

void DigitalReplies::Acknowledge() {
    AnswerLine(Ack, AnswerKind::RecordAcknowledgement);
}

void DigitalReplies::SendRecord(std::string_view body) {
    AnswerLine(body, AnswerKind::Record);
}

void DigitalReplies::RepeatRecord(std::string_view body) {
    const int answer = m_link.NextAnswer() - 1;
    m_link.Print(Line(body, answer, m_link.Plays(FaultKind::ChecksumAlways, answer)));
}

} // namespace Simulator
