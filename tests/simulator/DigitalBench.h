// A digital radio on the table: what it is sent and what it answers, without waiting for real time.
#pragma once

#include "simulator/FaultyLink.h"
#include "simulator/Options.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace digitaltest {

// Lines of the dialogue as they are sent, without their ends.
constexpr char Hello0[] = "T007000020030000D5";
constexpr char Hello1[] = "T007000021030000D4";
constexpr char Hello2[] = "T007000022030000D3";
constexpr char Ack[] = "T204000000FB";
constexpr char Nak[] = "T204000001FA";
constexpr char Wait[] = "T204000002F9";
constexpr char End[] = "T9030000FC";
constexpr char Purge[] = "T204000011EA";
constexpr char ReadStamp[] = "T204000020DB";
constexpr char ReadVersion[] = "T204000022D9";
constexpr char SendMemories[] = "T204000024D7";
constexpr char TakeMemories[] = "T204000025D6";
constexpr char SendLog[] = "T204000030CB";
constexpr char SendHardware[] = "T204000031CA";
constexpr char ChangeSpeed[] = "T206000032048043";
constexpr char ReadModes[] = "T204000033C8";
constexpr char SendConfig[] = "T204000034C7";
constexpr char TakeConfig[] = "T204000035C6";

/// A body with its checksum: the complement of the sum of all bytes after letter and type.
inline std::string Framed(const std::string& body) {
    unsigned sum = 0;
    for (size_t k = 2; k + 1 < body.size(); k += 2)
        sum += static_cast<unsigned>(std::stoul(body.substr(k, 2), nullptr, 16));
    char text[8];
    std::snprintf(text, sizeof text, "%02X", ~sum & 0xFF);
    return body + text;
}

/// Hexadecimal digits of a number, and of a text.
inline std::string Digits(unsigned value, int count) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*X", count, value);
    return text;
}
inline std::string TextDigits(std::string_view text) {
    std::string digits;
    for (const char c : text)
        digits += Digits(static_cast<unsigned char>(c), 2);
    return digits;
}

/// The body with text at a position.
inline std::string With(std::string body, size_t position, std::string_view text) {
    return body.replace(position, text.size(), text);
}

/// A plain memory of each layout without its checksum: its number in all places, 136.0000 and 174.0000 MHz.
/// Numbers from 231 are guards in V1.
inline std::string PlainV1(unsigned number, std::string_view name = "PLAIN   ") {
    return "T143" + Digits(number, 4) + (number > 230 ? "80" : "00") + Digits(number, 2) + Digits(number, 2) +
           "00" + TextDigits(name) + "206E" + TextDigits("136.0000") + "5278" + "0001" + "01" + "00" +
           "0293" + TextDigits("174.0000") + "5478" + "0001" + "01" + "01" + "0293" + "00000001" +
           "00000000000000" + "0A" + "0000" + "00" + "000000";
}
inline std::string PlainV2(unsigned number, std::string_view name = "PLAIN   ") {
    return "T143" + Digits(number, 4) + "0000" + Digits(number, 4) + Digits(number, 4) + "0000" +
           TextDigits(name) + "206E" + "081B3200" + "5278" + "01" + "01" + "A293" + "0001" + "0A5F0780" +
           "5478" + "01" + "01" + "0293" + "0001" + "00000001" + "0000000000000000000000000000" + "00000000";
}

/// A radio made from a command line.
class Bench {
public:
    explicit Bench(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "--model");
        Simulator::DigitalContents contents;
        Simulator::Failure failure = Simulator::ParseOptions(arguments, m_options);
        if (!failure)
            failure = Simulator::LoadContents(*m_options.digitalModel, m_options.digital, contents);
        if (failure)
            throw std::runtime_error(*failure);
        m_link = std::make_unique<Simulator::FaultyLink>(Simulator::FaultPlan(m_options.faults),
                                                         m_options.late, m_output, m_journal);
        m_radio = std::make_unique<Simulator::DigitalRadio>(*m_options.digitalModel, m_options.digital.habits,
                                                            std::move(contents), *m_link);
    }

    Simulator::DigitalRadio& Radio() { return *m_radio; }
    Simulator::FaultyLink& Link() { return *m_link; }
    int Completed() const { return m_output.Completed(); }
    bool Vanished() const { return m_vanished; }
    /// Duration of the last answer's pauses.
    std::chrono::milliseconds Took() const { return m_took; }
    /// Sets the speed of the other side from now on.
    void SetSpeed(int baud) { m_baud = baud; }

    /// Returns the answer to these bytes, with line ends as '|'.
    std::string Raw(std::string_view bytes) {
        for (char c : bytes) {
            if (m_link->IsDead())
                break;
            m_radio->LineSpeed(m_baud);
            m_radio->Hear(static_cast<uint8_t>(c));
        }
        std::string all;
        const Simulator::TimePoint start{std::chrono::hours(1)};
        Simulator::TimePoint now = start;
        for (; !m_output.IsEmpty(); now += std::chrono::milliseconds(10)) {
            const auto delivery = m_output.Take(now, 0);
            all += delivery.bytes;
            m_vanished = m_vanished || delivery.vanish;
            if (m_output.IsEmpty())
                break;
        }
        m_took = std::chrono::duration_cast<std::chrono::milliseconds>(now - start);
        for (char& c : all)
            if (c == '\r')
                c = '|';
        return all;
    }
    /// Returns the answer to a line.
    std::string Tell(const std::string& line) { return Raw(line + "\r"); }

    /// Opens a dialogue of the radio's protocol, including the speed change.
    void Open() {
        SetSpeed(9600);
        const int protocol = m_options.digital.habits.protocol;
        const char* const hello = protocol == 0 ? Hello0 : protocol == 1 ? Hello1 : Hello2;
        ASSERT_EQ(Tell(hello), std::string(Ack) + "|");
        if (protocol != 2)
            return;
        ASSERT_EQ(Tell(ChangeSpeed), std::string(Ack) + "|");
        SetSpeed(115200);
    }
    /// Opens a dialogue and starts a write.
    void OpenWrite() {
        Open();
        ASSERT_EQ(Tell(TakeMemories), std::string(Ack) + "|");
    }
    /// Opens a dialogue and reads until the radio is silent or ends the list. Returns what it said.
    std::string ReadAll() {
        Open();
        EXPECT_EQ(Tell(SendMemories), std::string(Ack) + "|");
        std::string all;
        for (int k = 0; k < 600; ++k) {
            const std::string said = Tell(Ack);
            all += said;
            if (said.empty() || said == std::string(End) + "|")
                break;
        }
        return all;
    }

private:
    Simulator::Options m_options;
    Simulator::Journal m_journal;
    Simulator::OutputQueue m_output;
    std::unique_ptr<Simulator::FaultyLink> m_link;
    std::unique_ptr<Simulator::DigitalRadio> m_radio;
    std::chrono::milliseconds m_took{};
    int m_baud = 9600;
    bool m_vanished = false;
};

/// A line with its end as the bench shows it.
inline std::string Said(const std::string& line) {
    return line + "|";
}

} // namespace digitaltest
