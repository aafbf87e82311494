// Dialogue of the digital radios.
#pragma once

#include "simulator/DigitalLists.h"
#include "simulator/DigitalMemory.h"
#include "simulator/DigitalReplies.h"
#include "simulator/HexRecord.h"
#include "simulator/Radio.h"

#include <string>
#include <vector>

namespace Simulator {

/// Settings that can differ between radios of the same model.
struct DigitalHabits {
    int protocol = 0;                     ///< transfer protocol, 0 to 2
    std::string firmware;                 ///< six hexadecimal digits
    int modes = 0x70;                     ///< enabled operating modes: 0x40 wide, 0x20 narrow, 0x10 P25
    std::string stamp = "20200101000000"; ///< identity stamp, 14 decimal digits
    std::string serial = "SIM00716";
    std::string memoryFile; ///< empty: memories are not kept
    std::string configFile; ///< empty: configuration lines are not kept
};

/// Contents of the radio.
struct DigitalContents {
    DigitalMemoryList memories;
    std::vector<std::string> hardware = DefaultHardware();
    std::vector<std::string> config = DefaultConfig();
    std::vector<std::string> log; ///< records without checksums
};

/// Plays one digital radio. Refuses, reports and counts every violation of the rules.
class DigitalRadio : public Radio {
public:
    /// `model` and `link` must outlive the radio.
    DigitalRadio(const DigitalModel& model, DigitalHabits habits, DigitalContents contents, RadioLink& link);

    void LineSpeed(int baud) override { m_lineSpeed = baud; }
    int Speed() const override { return m_speed; }
    void ExpectUnseenCloses() override { m_unseenCloses = true; }
    void Hear(uint8_t byte) override;
    bool IsAtRest() const override;
    bool BeginsAnew(std::string_view bytes) const override;
    void PortClosed() override;
    Failure Store() override;
    int Violations() const override { return m_violations; }

    const DigitalMemoryList& Memories() const { return m_contents.memories; }
    const std::vector<std::string>& Config() const { return m_contents.config; }
    const std::string& Stamp() const { return m_habits.stamp; }

private:
    enum class State {
        Idle,          // waits for a hello
        Greeted,       // has accepted a hello and received nothing since
        Ready,         // takes messages
        Sending,       // sends a list, one record for each acknowledgement
        WritingMemory, // takes memory records
        WritingConfig, // takes configuration records
        Over,          // has sent the end record itself
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
    DigitalReplies m_replies;
    const Layout m_layout;
    State m_state = State::Idle;
    std::string m_text; // characters since the last carriage return
    int m_lineSpeed;    // set by the other side
    int m_speed;        // the radio listens at this speed
    bool m_unseenCloses = false;
    bool m_garbled = false; // has reported a wrong speed
    List m_list = List::Memories;
    std::vector<std::string> m_bodies; // the list being sent
    size_t m_next = 0;                 // its first record that hasn't been sent
    bool m_repeated = false;           // the last one was sent twice
    std::vector<std::string> m_newConfig;
    bool m_changed = false;       // memories differ from the file
    bool m_configChanged = false; // configuration differs from the file
    int m_violations = 0;
};

} // namespace Simulator
