// The radio's side of a transfer, played by a thread of the test.
#pragma once

#include "tests/support/PseudoTerminal.h"

#include <functional>
#include <string>
#include <thread>
#include <utility>

namespace transfertest {

/// Runs a script on its own serial port while the test's thread transfers. The test provides the script,
/// which should read with deadlines, as PseudoTerminal does.
class RadioPeer {
public:
    explicit RadioPeer(std::function<void(RadioPeer&)> script) {
        m_port.HoldSlave();
        m_thread = std::thread([this, play = std::move(script)] { play(*this); });
    }
    ~RadioPeer() { Finish(); }
    RadioPeer(const RadioPeer&) = delete;
    RadioPeer& operator=(const RadioPeer&) = delete;

    /// Waits for the end of the script.
    void Finish() {
        if (m_thread.joinable())
            m_thread.join();
    }

    const std::string& PortName() const { return m_port.SlaveName(); }
    PseudoTerminal& Port() { return m_port; }

    /// Reads count bytes, or what arrived within the time, and keeps them in Heard.
    std::string Hear(size_t count, int ms = 15000) {
        const std::string text = m_port.Read(count, std::chrono::milliseconds(ms));
        m_heard += text;
        return text;
    }
    /// Reads text up to and including a carriage return, or what arrived within the time, and keeps it in
    /// Heard.
    std::string HearLine(int ms = 15000) {
        const std::string text = m_port.ReadUntil('\r', std::chrono::milliseconds(ms));
        m_heard += text;
        return text;
    }
    void Say(const std::string& text) { m_port.Write(text); }

    /// Unplugs the radio.
    void Vanish() {
        m_port.ReleaseSlave();
        m_port.CloseMaster();
    }

    /// Everything that the script has heard. Call only after the script has finished.
    const std::string& Heard() const { return m_heard; }
    /// What the program sent and the script did not read.
    std::string Rest() { return m_port.Read(10000, std::chrono::milliseconds(100)); }

private:
    PseudoTerminal m_port;
    std::string m_heard;
    std::thread m_thread;
};

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
