// The radio's side of a transfer, played by a script of the test.
#pragma once

#include "tests/transfer/Actor.h"
#include "tests/transfer/VirtualSystem.h"

#include <functional>
#include <memory>
#include <string>

namespace transfertest {

class RadioPeerEnd;

/// Runs a script at the other end of a serial port while the test's thread transfers: in virtual time if the
/// test has a VirtualSystem, otherwise in a thread at a pseudo-terminal.
class RadioPeer {
public:
    explicit RadioPeer(std::function<void(RadioPeer&)> script);
    ~RadioPeer();
    RadioPeer(const RadioPeer&) = delete;
    RadioPeer& operator=(const RadioPeer&) = delete;

    /// Waits for the end of the script.
    void Finish();

    const std::string& PortName() const;

    /// Speed that the program has set, in baud.
    int Speed() const;

    /// Reads count bytes, or what arrived within the time, and keeps them in Heard.
    std::string Hear(size_t count, int ms = 15000);
    /// Reads text up to and including a carriage return, or what arrived within the time, and keeps it in
    /// Heard.
    std::string HearLine(int ms = 15000);
    void Say(const std::string& text);
    void Pause(int ms);

    /// Unplugs the radio.
    void Vanish();

    /// Everything that the script has heard. Call only after the script has finished.
    const std::string& Heard() const { return m_heard; }
    /// What the program sent and the script did not read. Waits for the end of the script.
    std::string Rest();

private:
    class VirtualEnd;

    std::string m_heard;
    std::unique_ptr<RadioPeerEnd> m_end; ///< last: its thread uses the others
};

/// True if the program could open the port now, be it a virtual one or the computer's.
bool PortIsFree(const std::string& portName);

/// A text as sent by a radio that sets bit 7 of every byte.
inline std::string Marked(std::string text) {
    for (char& byte : text)
        byte = static_cast<char>(byte | 0x80);
    return text;
}

/// A memory line of the long form with its carriage return, as a radio sends it.
inline std::string RadioLine(const std::string& number, const std::string& frequency = "138.0000",
                             const std::string& description = "RADIO    ") {
    return number + " " + description + " " + frequency + "RX " + frequency +
           "TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N\r";
}

/// The line that FillRow makes.
inline std::string SentLine(const std::string& number, const std::string& frequency) {
    return number + " HILL      " + frequency + "RX " + frequency +
           "TX CTCSS: 01RX 63TX DPL: 023RX 754TX 1_3__W\r";
}

/// The end line of a write.
inline std::string EndLine(const std::string& word) {
    return word + std::string(74, ' ') + "\r";
}

} // namespace transfertest
