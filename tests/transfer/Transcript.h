// Complete conversations with a digital radio as readable text.
#pragma once

#include "robot/Files.h"
#include "tests/support/Places.h"
#include "tests/transfer/RadioPeer.h"

#include <atomic>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace transfertest {

/// Replaces, in a transcript, the digits and the checksum of a stamp that the program has just made.
constexpr const char* AnyStamp = "{stamp}";

/// A line of the digital radios with its checksum, computed independently of the program.
inline std::string Framed(const std::string& line) {
    unsigned sum = 0;
    for (size_t at = 2; at + 1 < line.size(); at += 2)
        sum += static_cast<unsigned>(std::stoul(line.substr(at, 2), nullptr, 16));
    char checksum[3] = "";
    std::snprintf(checksum, sizeof checksum, "%02X", ~sum & 0xFF);
    return line + checksum;
}

/// A line of the program as in a transcript: one that sets a valid stamp gets AnyStamp for its digits.
inline std::string WithoutStamp(const std::string& line) {
    const std::string start = "T20B000021";
    const bool isStamp = line.size() == 26 && line.starts_with(start) &&
                         line.find_first_not_of("0123456789", start.size()) >= 24 &&
                         Framed(line.substr(0, 24)) == line;
    return isStamp ? start + AnyStamp : line;
}

/// A conversation, line by line in order:
///
///     >TEXT   sent by the program
///     <TEXT   sent by the radio
///     TEXT    written to the log by the program, as are the lines above
///     #TEXT   a remark
///     @WORD   something that happens: "speed 9600" the port's speed is looked at, "cancel" the user cancels,
///             "crlf" the radio ends its lines with a line feed too
class Transcript {
public:
    explicit Transcript(const std::string& text) {
        std::istringstream input(text);
        for (std::string line; std::getline(input, line);)
            m_lines.push_back(line);
    }

    static Transcript FromFile(const std::string& name) {
        return Transcript(testbench::ReadFile(testbench::TranscriptsFolder() + "/" + name + ".txt"));
    }

    const std::vector<std::string>& Lines() const { return m_lines; }

    /// The expected log of such a transfer.
    std::string Log() const {
        std::string log;
        for (const std::string& line : m_lines)
            if (line[0] != '#' && line[0] != '@')
                log += line + "\n";
        return log;
    }

private:
    std::vector<std::string> m_lines;
};

/// A log with AnyStamp for the stamps that the program made.
inline std::string LogWithoutStamps(const std::string& log) {
    std::string result;
    std::istringstream input(log);
    for (std::string line; std::getline(input, line);)
        result += (line.starts_with(">") ? ">" + WithoutStamp(line.substr(1)) : line) + "\n";
    return result;
}

/// The radio of a transcript: sends its lines and compares the program's lines with it.
class TranscriptPeer {
public:
    /// cancel is the user's action at "@cancel".
    explicit TranscriptPeer(Transcript transcript, std::function<void()> cancel = {})
        : m_transcript(std::move(transcript)), m_cancel(std::move(cancel)),
          m_peer([this](RadioPeer& radio) { Play(radio); }) {}

    const std::string& PortName() const { return m_peer.PortName(); }
    RadioPeer& Peer() { return m_peer; }
    const Transcript& Text() const { return m_transcript; }

    /// Waits for the end. Returns the deviation from the transcript, empty if there is none.
    std::string Finish() {
        m_peer.Finish();
        if (m_mismatch.empty())
            if (const std::string rest = m_peer.Rest(); !rest.empty())
                m_mismatch = "after the end the program sent: " + rest;
        return m_mismatch;
    }

private:
    void Play(RadioPeer& radio) {
        size_t number = 0;
        for (const std::string& line : m_transcript.Lines()) {
            ++number;
            if (!PlayLine(radio, line)) {
                m_mismatch += " at line " + std::to_string(number) + ": " + line;
                return;
            }
        }
    }

    bool PlayLine(RadioPeer& radio, const std::string& line) {
        if (line.starts_with(">"))
            return Expect(radio, line.substr(1));
        if (line.starts_with("<") && line != "<Timeout>")
            radio.Say(line.substr(1) + m_lineEnd);
        else if (line == "@crlf")
            m_lineEnd = "\r\n";
        else if (line == "@cancel")
            m_cancel();
        else if (line.starts_with("@speed"))
            return ExpectSpeed(radio, line == "@speed 9600" ? 9600 : 115200);
        return true;
    }

    bool Expect(RadioPeer& radio, const std::string& line) {
        const std::string heard = radio.HearLine(5000);
        if (heard.ends_with('\r') && WithoutStamp(heard.substr(0, heard.size() - 1)) == line)
            return true;
        m_mismatch = "the program sent \"" + heard + "\"";
        return false;
    }

    bool ExpectSpeed(RadioPeer& radio, int speed) {
        if (radio.Speed() == speed)
            return true;
        m_mismatch = "the speed is another one";
        return false;
    }

    Transcript m_transcript;
    std::function<void()> m_cancel;
    std::string m_lineEnd = "\r";
    std::string m_mismatch;
    RadioPeer m_peer; // last: its thread uses the others
};

} // namespace transfertest
