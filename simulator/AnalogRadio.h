// Dialogue of the analog radios.
#pragma once

#include "simulator/MemoryList.h"
#include "simulator/Radio.h"

#include <chrono>
#include <optional>
#include <string>

namespace Simulator {

/// Which characters the radio sends with bit 7 set.
enum class Parity {
    None,
    Text, ///< memory lines after the number field; readers search for the number without bit 7
    All,  ///< every character including banner and end line, except carriage returns
    Bytes ///< every byte including carriage returns and acknowledgements
};

/// Settings that can differ between radios of the same model.
struct AnalogHabits {
    std::optional<std::string> banner; ///< sent before the first memory; not set: the radio's own
    bool shortForm = false;            ///< sends the short line form
    bool guardNames = false;           ///< sends guards as GD1 and GD2
    bool allRows = false;              ///< also sends empty memories
    bool endLine = true;               ///< sends an end line after the list
    bool confirmsOpening = false;      ///< acknowledges the command of a write, like a line
    Parity parity = Parity::None;
    std::chrono::milliseconds keyDelay{500};
    std::string memoryFile; ///< empty: memories are not kept
};

/// Plays one band of one analog radio. Doesn't answer anything that a real one wouldn't understand.
class AnalogRadio : public Radio {
public:
    /// `model` and `link` must outlive the radio.
    AnalogRadio(const AnalogModel& model, AnalogHabits habits, MemoryList memories, RadioLink& link);

    void ExpectUnseenCloses() override { m_unseenCloses = true; }
    void Hear(uint8_t byte) override;
    bool IsAtRest() const override;
    void PortClosed() override;
    Failure Store() override;

    const MemoryList& Memories() const { return m_memories; }

private:
    enum class State {
        Command,       // collects a command
        OpeningNumber, // "rt" was received, its number comes next
        Blank,         // read command received; after an opening it needs a blank to take effect
        Writing,       // takes memory lines
        Sending,       // sends the memory list
        Deaf           // got an opening for another radio; ignores all input until the port is closed
    };

    bool BeginsADialogue(const std::string& text) const;
    void TakeCommand(const std::string& text);
    bool TakeMemoryCommand(const std::string& text);
    void TakeLine(const std::string& line);
    void TakeEndLine(const std::string& line);
    void SendMemories();
    void Confirm();
    std::string AcknowledgementByte() const;
    std::string OnTheWire(std::string_view line, size_t plain) const;
    std::string NumberText(int number) const;

    const AnalogModel& m_model;
    AnalogHabits m_habits;
    MemoryList m_memories;
    RadioLink& m_link;
    State m_state = State::Command;
    std::string m_text;     // characters since the last carriage return
    bool m_opened = false;  // got the right "rt" opening
    int m_reach = 0;        // highest memory of this transfer
    bool m_counted = false; // opened with a count: the list ends with END
    bool m_changed = false; // memories differ from the file
    bool m_unseenCloses = false;
};

} // namespace Simulator
