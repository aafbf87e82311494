#include "simulator/DigitalRadio.h"

#include "simulator/DigitalMemoryFile.h"

namespace Simulator {

namespace {

constexpr int SlowBaud = 9600;
constexpr int HelloBase = 0x20;

} // namespace

DigitalRadio::DigitalRadio(const DigitalModel& model, DigitalHabits habits, DigitalContents contents,
                           RadioLink& link)
    : m_model(model), m_habits(std::move(habits)), m_contents(std::move(contents)), m_link(link),
      m_replies(link), m_layout(LayoutOf(m_habits.protocol, m_habits.firmware)), m_lineSpeed(SlowBaud),
      m_speed(SlowBaud) {}

void DigitalRadio::Hear(uint8_t byte) {
    if (m_state == State::Deaf || !FitsSpeed())
        return;
    if (byte != '\r') {
        if (m_text.size() <= LongestRecord)
            m_text += static_cast<char>(byte);
        return;
    }
    const std::string line = std::move(m_text);
    m_text.clear();
    m_link.Note("< " + line);
    TakeLine(line);
}

bool DigitalRadio::FitsSpeed() {
    // After it has ended a dialogue itself, the radio already accepts the next one at the slow speed. The
    // other side may still send its last record at the old speed.
    const bool fits = m_lineSpeed == m_speed || (m_state == State::Over && m_lineSpeed == SlowBaud);
    if (!fits && !m_garbled) {
        m_text.clear();
        ++m_violations;
        m_link.Complain("hears garbage: the port is at " + std::to_string(m_lineSpeed) +
                        " baud, the radio at " + std::to_string(m_speed));
    }
    m_garbled = !fits;
    return fits;
}

void DigitalRadio::TakeLine(const std::string& line) {
    const auto record = ParseRecord(line);
    if (!record) {
        Refuse("\"" + line + "\" " + record.Reason());
        return;
    }
    switch (record->type) {
    case HexRecord::Type::Hello:
        TakeHello(*record);
        break;
    case HexRecord::Type::Data:
        TakeData(*record, line);
        break;
    case HexRecord::Type::Message:
        TakeMessage(*record);
        break;
    case HexRecord::Type::End:
        if (record->address == 0)
            TakeEnd();
        else
            Refuse("end record with an address");
        break;
    }
}

void DigitalRadio::TakeHello(const HexRecord& hello) {
    const bool shaped = hello.address == 0 && hello.data.size() == 4 && hello.data[0] >= HelloBase &&
                        hello.data[1] == 3 && hello.data[2] == 0 && hello.data[3] == 0;
    if (!shaped) {
        Refuse("hello doesn't hold a protocol, 03, 00, 00");
        return;
    }
    if (m_unseenCloses)
        PortClosed();
    const bool expected = m_state == State::Idle || m_state == State::Greeted || m_state == State::Over;
    if (!expected || m_lineSpeed != SlowBaud) {
        Refuse("hello in the middle of a dialogue");
        return;
    }
    m_state = State::Idle;
    m_speed = SlowBaud;
    if (hello.data[0] != HelloBase + m_habits.protocol) {
        m_replies.SayNak();
        return;
    }
    m_state = State::Greeted;
    m_replies.BeginDialogue();
    m_replies.SayAck();
}

void DigitalRadio::TakeEnd() {
    if (m_state == State::Idle) {
        m_link.Note("- end record outside a dialogue");
        return;
    }
    if (m_state == State::WritingConfig && !m_newConfig.empty()) {
        m_contents.config = std::move(m_newConfig);
        m_configChanged = true;
    }
    m_newConfig.clear();
    Keep();
    if (m_state != State::Over)
        m_link.EndTransfer();
    m_state = State::Idle;
    m_speed = SlowBaud;
}

void DigitalRadio::TakeData(const HexRecord& record, const std::string& line) {
    if (m_state == State::WritingMemory)
        TakeMemory(line);
    else if (m_state == State::WritingConfig)
        TakeConfig(record);
    else
        Refuse("data record that nothing has announced");
}

void DigitalRadio::TakeMemory(const std::string& line) {
    const auto memory = ParseMemory(m_layout, line, m_model);
    if (!memory) {
        Refuse("\"" + line + "\": " + memory.Reason());
        return;
    }
    switch (m_replies.NextInstead()) {
    case DigitalReplies::Instead::Nak:
        m_replies.SayNak();
        return;
    case DigitalReplies::Instead::End:
        m_replies.SayEnd();
        m_state = State::Over;
        return;
    case DigitalReplies::Instead::Nothing:
        break;
    }
    m_contents.memories[memory->address] = *memory;
    m_changed = true;
    m_replies.Acknowledge();
}

void DigitalRadio::TakeConfig(const HexRecord& record) {
    const std::string text(record.data.begin(), record.data.end());
    Failure failure;
    if (record.address != 0)
        failure = "has an address";
    if (!failure)
        failure = CheckRecordText(text);
    if (!failure)
        failure = CheckConfig(text);
    if (failure) {
        Refuse("configuration \"" + text + "\" " + *failure);
        return;
    }
    m_newConfig.push_back(text);
    m_replies.SayAck();
}

void DigitalRadio::BeginList(List list, std::vector<std::string> bodies) {
    m_state = State::Sending;
    m_list = list;
    m_bodies = std::move(bodies);
    m_next = 0;
    m_repeated = false;
}

std::vector<std::string> DigitalRadio::MemoryBodies() const {
    std::vector<std::string> bodies;
    for (const auto& [address, memory] : m_contents.memories) {
        std::string line = FormatMemory(m_layout, memory, ShadowsOf(memory, m_contents.memories), m_model);
        if (line.empty())
            continue; // the layout has no number for it
        line.resize(line.size() - 2);
        bodies.push_back(std::move(line));
    }
    return bodies;
}

void DigitalRadio::SendNext() {
    if (m_next == m_bodies.size()) {
        EndList();
        return;
    }
    if (m_list != List::Memories) {
        m_replies.Say(m_bodies[m_next++]);
        return;
    }
    switch (m_replies.NextInstead()) {
    case DigitalReplies::Instead::Nak:
        m_replies.SayNak();
        return;
    case DigitalReplies::Instead::End:
        EndList();
        return;
    case DigitalReplies::Instead::Nothing:
        break;
    }
    m_repeated = false;
    m_replies.SendRecord(m_bodies[m_next++]);
}

void DigitalRadio::SendAgain() {
    if (m_next == 0 || m_repeated) {
        SendNext();
        return;
    }
    // The end record that is due instead of the next memory can come instead of a repetition.
    if (m_list == List::Memories && m_link.Plays(FaultKind::End, m_link.NextAnswer())) {
        EndList();
        return;
    }
    m_repeated = true;
    if (m_list == List::Memories)
        m_replies.RepeatRecord(m_bodies[m_next - 1]);
    else
        m_replies.Say(m_bodies[m_next - 1]);
}

void DigitalRadio::EndList() {
    m_replies.SayEnd();
    m_bodies.clear();
    if (m_list == List::Hardware) {
        m_state = State::Ready;
        return;
    }
    m_state = State::Over;
    m_link.EndTransferWhenSent();
}

void DigitalRadio::Refuse(const std::string& why) {
    ++m_violations;
    m_link.Complain("refused: " + why);
    m_replies.SayNak();
}

bool DigitalRadio::IsAtRest() const {
    return (m_state == State::Idle || m_state == State::Over) && !m_link.IsSending() && m_text.empty();
}

bool DigitalRadio::BeginsAnew(std::string_view bytes) const {
    // The rest of a hello may not have arrived yet.
    constexpr std::string_view hello = "T007";
    return m_text.empty() && hello.starts_with(bytes.substr(0, hello.size()));
}

void DigitalRadio::PortClosed() {
    m_state = State::Idle;
    m_speed = m_lineSpeed = SlowBaud;
    m_garbled = false;
    m_text.clear();
    m_newConfig.clear();
}

void DigitalRadio::Keep() {
    if (const Failure failure = Store())
        m_link.Complain(*failure);
}

Failure DigitalRadio::Store() {
    if (m_changed && !m_habits.memoryFile.empty()) {
        if (Failure failure =
                SaveDigitalMemories(m_habits.memoryFile, m_model, m_layout, m_contents.memories))
            return failure;
        m_changed = false;
    }
    if (m_configChanged && !m_habits.configFile.empty()) {
        if (Failure failure = SaveConfig(m_habits.configFile, m_contents.config))
            return failure;
        m_configChanged = false;
    }
    return {};
}

} // namespace Simulator
