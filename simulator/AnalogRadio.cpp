#include "simulator/AnalogRadio.h"

#include <algorithm>

namespace Simulator {

namespace {

constexpr char Acknowledge = 0x05;
constexpr size_t LongestLine = 200;
constexpr size_t EndLineBlanks = 74;

/// The byte with bit 7 set.
char Marked(char byte) {
    return static_cast<char>(static_cast<unsigned char>(byte) | 0x80);
}

} // namespace

AnalogRadio::AnalogRadio(const AnalogModel& model, AnalogHabits habits, MemoryList memories, RadioLink& link)
    : m_model(model), m_habits(std::move(habits)), m_memories(std::move(memories)), m_link(link) {
    if (!m_habits.banner)
        m_habits.banner = std::string(model.name) + " MEMORY LIST " + std::string(model.band) + " MHZ";
}

void AnalogRadio::Hear(uint8_t byte) {
    if (m_state == State::Sending && !m_link.IsSending())
        m_state = State::Command;
    switch (m_state) {
    case State::Deaf:
    case State::Sending:
        return;
    case State::Blank:
        m_state = State::Command;
        if (byte == ' ')
            SendMemories();
        else
            m_link.Complain("the read command of this radio needs a blank after it");
        return;
    case State::Command:
    case State::OpeningNumber:
    case State::Writing:
        break;
    }
    if (byte != '\r') {
        if (m_text.size() < LongestLine)
            m_text += static_cast<char>(byte);
        return;
    }
    const std::string text = std::move(m_text);
    m_text.clear();
    m_link.Note("< " + text);
    if (m_unseenCloses && BeginsADialogue(text))
        PortClosed();
    if (m_state == State::Writing)
        TakeLine(text);
    else
        TakeCommand(text);
}

/// True for commands that no line of a list looks like. After its opening a read or write command goes on
/// with the dialogue.
bool AnalogRadio::BeginsADialogue(const std::string& text) const {
    if (m_model.openingNumber != 0)
        return text == "rt";
    return text == "dl" || text == "ul" || text.starts_with("DL") || text.starts_with("UL");
}

void AnalogRadio::TakeCommand(const std::string& text) {
    if (m_state == State::OpeningNumber) {
        m_state = State::Command;
        m_opened = text == std::to_string(m_model.openingNumber);
        if (!m_opened)
            m_link.Complain("opening number \"" + text + "\" is for another radio");
        return;
    }
    if (text == "rt") {
        if (m_model.openingNumber == 0) {
            m_link.Complain("this radio knows no rt opening");
            m_state = State::Deaf;
        } else {
            m_state = State::OpeningNumber;
        }
        return;
    }
    if (m_model.openingNumber != 0 && !m_opened) {
        m_link.Complain("command \"" + text + "\" without the rt opening");
        return;
    }
    if (!TakeMemoryCommand(text))
        m_link.Complain("unknown command \"" + text + "\"");
}

bool AnalogRadio::TakeMemoryCommand(const std::string& text) {
    bool write = false;
    if (text == "dl" || text == "ul") {
        write = text == "dl";
        m_counted = false;
        m_reach = ShortOpeningReach(m_model);
    } else if (text.size() == 5 && (text.starts_with("DL") || text.starts_with("UL"))) {
        if (text.find_first_not_of("0123456789", 2) != std::string::npos)
            return false;
        const int count = std::stoi(text.substr(2));
        if (count <= ShortOpeningReach(m_model) || count > m_model.rows)
            return false;
        write = text[0] == 'D';
        m_counted = true;
        m_reach = count;
    } else {
        return false;
    }
    if (write && !m_model.writable)
        return false;
    m_link.BeginTransfer();
    if (write) {
        m_state = State::Writing;
        if (m_habits.confirmsOpening)
            m_link.Print(AcknowledgementByte());
    } else if (m_model.openingNumber != 0) {
        m_state = State::Blank;
    } else {
        SendMemories();
    }
    return true;
}

void AnalogRadio::TakeLine(const std::string& line) {
    // An opening without a count never reaches memory 300, so that number marks the end of the list.
    if (line.starts_with(m_counted ? "END" : "300")) {
        TakeEndLine(line);
        return;
    }
    const auto memory = ParseLongLine(line, m_model, m_reach);
    if (!memory) {
        m_link.Complain("refused \"" + line + "\": " + memory.Reason());
        return;
    }
    m_memories[memory->number] = *memory;
    m_changed = true;
    Confirm();
}

void AnalogRadio::Confirm() {
    m_link.Answer(AcknowledgementByte(), AnswerKind::Acknowledgement);
}

std::string AnalogRadio::AcknowledgementByte() const {
    return {m_habits.parity == Parity::Bytes ? Marked(Acknowledge) : Acknowledge};
}

void AnalogRadio::TakeEndLine(const std::string& line) {
    if (line.substr(3) != std::string(EndLineBlanks, ' '))
        m_link.Complain("end line \"" + line + "\" doesn't have 74 blanks after its first three characters");
    m_state = State::Command;
    m_opened = false;
    if (const Failure failure = Store())
        m_link.Complain(*failure);
    m_link.EndTransfer();
}

void AnalogRadio::SendMemories() {
    m_state = State::Sending;
    m_opened = false;
    if (m_model.key != StartKey::None)
        m_link.WaitForKey(m_habits.keyDelay);
    if (!m_habits.banner->empty())
        m_link.Print(OnTheWire(*m_habits.banner, m_habits.banner->size()));
    for (int number = 1; number <= m_reach; ++number) {
        const auto found = m_memories.find(number);
        // Always send memory 1: readers treat everything before it as a banner.
        if (found == m_memories.end() && number != 1 && !m_habits.allRows)
            continue;
        const AnalogMemory memory = found == m_memories.end() ? EmptyMemory(m_model, number) : found->second;
        const std::string field = NumberText(number);
        m_link.Answer(
            OnTheWire(m_habits.shortForm ? FormatShortLine(memory, field) : FormatLongLine(memory, field),
                      field.size()),
            AnswerKind::Line);
    }
    if (m_habits.endLine)
        m_link.Print(OnTheWire(m_counted ? "END" : "300", 3));
    m_link.EndTransferWhenSent();
}

/// The line with parity bits and line end. With Parity::Text, the first `plain` characters get no parity bit.
std::string AnalogRadio::OnTheWire(std::string_view line, size_t plain) const {
    std::string bytes = std::string(line) + '\r';
    if (m_habits.parity == Parity::None)
        return bytes;
    const auto first = bytes.begin() + static_cast<ptrdiff_t>(m_habits.parity == Parity::Text ? plain : 0);
    const auto last = m_habits.parity == Parity::Bytes ? bytes.end() : bytes.end() - 1;
    std::transform(first, last, first, Marked);
    return bytes;
}

std::string AnalogRadio::NumberText(int number) const {
    if (m_habits.guardNames && HasGuards(m_model) && number > m_model.rows - 2)
        return number == m_model.rows ? "GD2" : "GD1";
    return NumberField(number);
}

bool AnalogRadio::IsAtRest() const {
    const bool between = m_state == State::Command || m_state == State::Sending;
    return between && !m_link.IsSending() && m_text.empty() && !m_opened;
}

void AnalogRadio::PortClosed() {
    m_state = State::Command;
    m_text.clear();
    m_opened = false;
}

Failure AnalogRadio::Store() {
    if (m_habits.memoryFile.empty() || !m_changed)
        return {};
    if (Failure failure = SaveMemories(m_habits.memoryFile, m_model, m_memories))
        return failure;
    m_changed = false;
    return {};
}

} // namespace Simulator
