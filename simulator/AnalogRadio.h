// The dialogue of the analog radios.
#pragma once

#include "simulator/MemoryList.h"
#include "simulator/Radio.h"

#include <chrono>
#include <optional>
#include <string>

namespace Simulator {

/// What carries a set bit 7 when the radio sends.
enum class Parity {
    None,
    Text, ///< characters of memory lines behind the number field, which a reader looks for as it stands
    All,  ///< every character, banner and end line included, but no carriage return
    Bytes ///< every byte, carriage returns and acknowledgements included
};

/// How this one radio differs from its sisters.
struct AnalogHabits {
    std::optional<std::string> banner; ///< printed before the first memory; none given: the radio's own
    bool shortForm = false;            ///< sends the short line form
    bool guardNames = false;           ///< sends guards as GD1 and GD2
    bool allRows = false;              ///< sends memories that hold nothing, too
    bool endLine = true;               ///< says that the list is over
    Parity parity = Parity::None;
    std::chrono::milliseconds keyDelay{500};
    std::string memoryFile; ///< empty: memories are lost at the end
};

/// Plays one band of one analog radio. Silent on everything that a real one wouldn't understand.
class AnalogRadio : public Radio {
public:
    /// `model` and `link` must outlive the radio.
    AnalogRadio(const AnalogModel& model, AnalogHabits habits, MemoryList memories, RadioLink& link);

    void Hear(std::uint8_t byte) override;
    bool IsAtRest() const override;
    void PortClosed() override;
    bool Store(std::string& trouble) override;

    const MemoryList& Memories() const { return m_memories; }

private:
    enum class State {
        Command,       // collects a command
        OpeningNumber, // "rt" was heard, its number comes next
        Blank,         // the read command of an opened radio takes effect with the blank behind it
        Writing,       // takes memory lines
        Sending,       // the memory list is going out
        Deaf           // spoken to like another radio: nothing until the port is closed
    };

    void TakeCommand(const std::string& text);
    bool TakeMemoryCommand(const std::string& text);
    void TakeLine(const std::string& line);
    void TakeEndLine(const std::string& line);
    void SendMemories();
    void Confirm();
    std::string OnTheWire(std::string_view line, std::size_t plain) const;
    std::string NumberText(int number) const;

    const AnalogModel& m_model;
    AnalogHabits m_habits;
    MemoryList m_memories;
    RadioLink& m_link;
    State m_state = State::Command;
    std::string m_text;     // characters since the last carriage return
    bool m_opened = false;  // the "rt" opening was right
    int m_reach = 0;        // highest memory of this transfer
    bool m_counted = false; // opened with a count: the list ends in END
    bool m_changed = false; // memories differ from the file
};

} // namespace Simulator
