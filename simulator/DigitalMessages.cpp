// Messages that a digital radio answers.
#include "simulator/DigitalRadio.h"

#include <algorithm>

namespace Simulator {

namespace {

constexpr int FastBaud = 115200;
constexpr int FastCode = 0x0480; // FastBaud in units of 100 baud

enum Message {
    Ack = 0x00,
    Nak = 0x01,
    Erase = 0x10,
    Purge = 0x11,
    ReadStamp = 0x20,
    SetStamp = 0x21,
    ReadVersion = 0x22,
    SendMemories = 0x24,
    TakeMemories = 0x25,
    SendLog = 0x30,
    SendHardware = 0x31,
    ChangeSpeed = 0x32,
    ReadModes = 0x33,
    SendConfig = 0x34,
    TakeConfigs = 0x35,
};

/// Number of bytes after the message's code.
size_t ExtraBytes(int code) {
    return code == SetStamp ? 7 : code == ChangeSpeed ? 2 : 0;
}

std::string Name(int code) {
    return "message " + Hex(static_cast<uint64_t>(code), 2);
}

} // namespace

void DigitalRadio::TakeMessage(const HexRecord& record) {
    const int code = record.data[0];
    if (record.data.size() != 1 + ExtraBytes(code)) {
        Refuse(Name(code) + " holds " + std::to_string(record.data.size()) + " bytes");
        return;
    }
    if (record.address != 0 && code != Erase) {
        Refuse(Name(code) + " with an address");
        return;
    }
    if (m_state == State::Idle || m_state == State::Over) {
        Refuse(Name(code) + " outside a dialogue");
        return;
    }
    if (code == ChangeSpeed) {
        TakeSpeed(record);
        return;
    }
    if (m_habits.protocol == 2 && m_state == State::Greeted) {
        Refuse(Name(code) + " before the speed was changed");
        return;
    }
    const bool toList = code == Ack || code == Nak;
    const bool toWriting = code == Erase || code == Purge;
    const bool busy = (m_state == State::Sending && m_list != List::Hardware) ||
                      m_state == State::WritingMemory || m_state == State::WritingConfig;
    if (toList ? m_state != State::Sending : toWriting ? m_state != State::WritingMemory : busy) {
        Refuse(Name(code) + " out of its place");
        return;
    }
    if (code == Ack)
        SendNext();
    else if (code == Nak)
        SendAgain();
    else if (code == Erase)
        TakeErase(record.address);
    else if (code == SetStamp)
        TakeStamp(record);
    else
        TakeQuery(code);
}

void DigitalRadio::TakeQuery(int code) {
    if (m_state == State::Greeted || m_state == State::Sending)
        m_state = State::Ready;
    switch (code) {
    case Purge:
        m_changed = m_changed || !m_contents.memories.empty();
        m_contents.memories.clear();
        m_replies.MaybeBusy();
        m_replies.SayAck();
        return;
    case ReadStamp:
        m_replies.Say("T20B000021" + m_habits.stamp);
        return;
    case ReadVersion:
        m_replies.Say("T207000023" + m_habits.firmware);
        return;
    case SendMemories:
        BeginList(List::Memories, MemoryBodies());
        m_replies.SayAck();
        m_link.BeginAnswers();
        return;
    case TakeMemories:
        m_state = State::WritingMemory;
        m_replies.SayAck();
        m_link.BeginAnswers();
        return;
    case SendLog:
        BeginList(List::Log, m_contents.log);
        m_replies.SayAck();
        return;
    case SendConfig: {
        std::vector<std::string> bodies;
        for (const std::string& line : m_contents.config)
            bodies.push_back(TextRecord(line));
        m_replies.Say("T205000034" + Hex(bodies.size(), 2));
        BeginList(List::Config, std::move(bodies));
        return;
    }
    case TakeConfigs:
        m_state = State::WritingConfig;
        m_replies.SayAck();
        return;
    case ReadModes:
        if (m_habits.protocol == 0)
            break;
        m_replies.Say("T205000033" + Hex(static_cast<uint64_t>(m_habits.modes), 2));
        return;
    case SendHardware: {
        if (m_habits.protocol != 2)
            break;
        std::vector<std::string> bodies = {TextRecord(m_habits.serial)};
        for (const std::string& line : m_contents.hardware)
            bodies.push_back(TextRecord(line));
        BeginList(List::Hardware, std::move(bodies));
        SendNext();
        return;
    }
    default:
        break;
    }
    Refuse(Name(code) + " is unknown to protocol " + std::to_string(m_habits.protocol));
}

int DigitalRadio::HighestErasable() const {
    constexpr int LastOrdinary = 500;
    return m_layout == Layout::V1 ? LastOrdinaryV1 : std::min(LastOrdinary, m_model.highest);
}

void DigitalRadio::TakeErase(int address) {
    if (address < 2 || address > HighestErasable()) {
        Refuse("erasing memory " + std::to_string(address) + ": it is not from 2 to " +
               std::to_string(HighestErasable()));
        return;
    }
    if (m_contents.memories.erase(address) > 0)
        m_changed = true;
    m_replies.MaybeBusy();
    m_replies.SayAck();
}

void DigitalRadio::TakeStamp(const HexRecord& record) {
    std::string digits;
    for (size_t k = 1; k < record.data.size(); ++k)
        digits += Hex(record.data[k], 2);
    if (digits.find_first_not_of("0123456789") != std::string::npos) {
        Refuse("stamp \"" + digits + "\" is not made of decimal digits");
        return;
    }
    m_state = State::Ready;
    m_habits.stamp = digits;
    m_replies.SayAck();
}

void DigitalRadio::TakeSpeed(const HexRecord& record) {
    if (m_habits.protocol != 2 || m_state != State::Greeted) {
        Refuse("speed change out of its place");
        return;
    }
    if (record.data[1] * 256 + record.data[2] != FastCode) {
        Refuse("speed change to anything but 115200 baud");
        return;
    }
    m_replies.SayAck();
    m_speed = FastBaud;
    m_state = m_link.Plays(FaultKind::Deaf, m_link.NextAnswer()) ? State::Deaf : State::Ready;
}

} // namespace Simulator
