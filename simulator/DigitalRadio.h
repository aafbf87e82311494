// The dialogue of the digital radios.
#pragma once

#include "simulator/DigitalLists.h"
#include "simulator/DigitalMemory.h"
#include "simulator/DigitalVoice.h"
#include "simulator/HexRecord.h"
#include "simulator/Radio.h"

#include <string>
#include <vector>

namespace Simulator {

/// How this one radio differs from its sisters.
struct DigitalHabits {
    int protocol = 0;                     ///< transfer protocol, 0 to 2
    std::string firmware;                 ///< six hexadecimal digits
    int modes = 0x70;                     ///< enabled operating modes: 0x40 wide, 0x20 narrow, 0x10 P25
    std::string stamp = "20200101000000"; ///< identity stamp, 14 decimal digits
    std::string serial = "SIM00716";
    std::string memoryFile; ///< empty: memories are lost at the end
    std::string configFile; ///< empty: configuration lines are lost at the end
};

/// What it holds.
struct DigitalContents {
    DigitalMemoryList memories;
    std::vector<std::string> hardware = DefaultHardware();
    std::vector<std::string> config = DefaultConfig();
    std::vector<std::string> log; ///< records without checksums
};

/// Plays one digital radio. Whatever breaks the rules is refused, complained of and counted.
class DigitalRadio : public Radio {
public:
    /// `model` and `link` must outlive the radio.
    DigitalRadio(const DigitalModel& model, DigitalHabits habits, DigitalContents contents, RadioLink& link);

    void LineSpeed(int baud) override { m_lineSpeed = baud; }
    void Hear(std::uint8_t byte) override;
    bool IsAtRest() const override;
    bool BeginsAnew(std::string_view bytes) const override;
    void PortClosed() override;
    bool Store(std::string& trouble) override;
    int Violations() const override { return m_violations; }

    const DigitalMemoryList& Memories() const { return m_contents.memories; }
    const std::vector<std::string>& Config() const { return m_contents.config; }
    const std::string& Stamp() const { return m_habits.stamp; }

private:
    enum class State {
        Idle,          // nothing but a hello makes it listen
        Greeted,       // a hello was accepted, and nothing has come since
        Ready,         // takes messages
        Sending,       // a list goes out, one record for each acknowledgement
        WritingMemory, // takes memory records
        WritingConfig, // takes configuration records
        Over,          // has said the end record itself
        Deaf           // plays dead until the port is closed
    };
    enum class List { Hardware, Memories, Config, Log };

    bool FitsSpeed();
    void TakeLine(const std::string& line);
    void TakeHello(const HexRecord& hello);
    void TakeEnd();
    void TakeData(const HexRecord& record, const std::string& line);
    void TakeMemory(const std::string& line);
    void TakeConfig(const HexRecord& record);
    void TakeMessage(const HexRecord& record);
    void TakeQuery(int code);
    void TakeErase(int address);
    void TakeStamp(const HexRecord& record);
    void TakeSpeed(const HexRecord& record);
    void BeginList(List list, std::vector<std::string> bodies);
    void SendNext();
    void SendAgain();
    void EndList();
    std::vector<std::string> MemoryBodies() const;
    void Refuse(const std::string& why);
    void Keep();
    int HighestErasable() const;

    const DigitalModel& m_model;
    DigitalHabits m_habits;
    DigitalContents m_contents;
    RadioLink& m_link;
    DigitalVoice m_voice;
    const Layout m_layout;
    State m_state = State::Idle;
    std::string m_text;     // characters since the last carriage return
    int m_lineSpeed;        // what the other side has set
    int m_speed;            // what the radio listens at
    bool m_garbled = false; // has complained of a wrong speed
    List m_list = List::Memories;
    std::vector<std::string> m_bodies; // the list that goes out
    std::size_t m_next = 0;            // first of it that hasn't been sent
    bool m_repeated = false;           // the last one was sent twice
    std::vector<std::string> m_newConfig;
    bool m_changed = false;       // memories differ from the file
    bool m_configChanged = false; // configuration differs from the file
    int m_violations = 0;
};

} // namespace Simulator
