#include "simulator/AnalogRadio.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/simulator/RadioLines.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using namespace testbench;
using namespace Simulator;
using namespace std::chrono_literals;

/// Records what the radio says.
class RecordingLink : public RadioLink {
public:
    void BeginTransfer() override { ++m_begun; }
    void Answer(std::string_view bytes, AnswerKind kind) override {
        m_said += bytes;
        (kind == AnswerKind::Line ? m_lines : m_acknowledgements) += 1;
    }
    void Print(std::string_view bytes) override { m_said += bytes; }
    void WaitForKey(std::chrono::milliseconds patience) override {
        m_said += "[key " + std::to_string(patience.count()) + "]";
    }
    void EndTransfer() override { ++m_completed; }
    void EndTransferWhenSent() override { ++m_completed; }
    bool IsSending() const override { return m_sending; }
    void Note(std::string_view) override {}
    void Complain(std::string_view text) override { m_complaints += std::string(text) + "\n"; }

    /// What was said since the last call.
    std::string Said() { return std::exchange(m_said, {}); }

    std::string m_said, m_complaints;
    int m_begun = 0, m_lines = 0, m_acknowledgements = 0, m_completed = 0;
    bool m_sending = false;
};

/// A radio on a recording link.
class Bench {
public:
    explicit Bench(const char* name, const char* band = "", const AnalogHabits& habits = {},
                   std::initializer_list<const char*> memories = {})
        : m_radio(Model(name, band), Quiet(habits), List(Model(name, band), memories), m_link) {}

    static const AnalogModel& Model(const char* name, const char* band) {
        return **FindAnalogModel(name, band);
    }

    /// Returns what the radio says to these bytes.
    std::string Tell(std::string_view bytes) {
        for (char c : bytes)
            m_radio.Hear(static_cast<uint8_t>(c));
        return m_link.Said();
    }

    RecordingLink m_link;
    AnalogRadio m_radio;

private:
    static AnalogHabits Quiet(AnalogHabits habits) {
        if (!habits.banner)
            habits.banner = "";
        return habits;
    }
    static MemoryList List(const AnalogModel& model, std::initializer_list<const char*> lines) {
        MemoryList list;
        for (const char* line : lines) {
            const auto memory = ParseLongLine(line, model, model.rows);
            EXPECT_TRUE(memory) << line << ": " << memory.Reason();
            list[memory->number] = *memory;
        }
        return list;
    }
};

constexpr char Ack[] = "\x05";
constexpr char Empty610[] = "001           138.0000RX 138.0000TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N\r";

TEST(WriteCommand, OfEachOpeningNumberIsTakenAfterItsOwnNumberOnly) {
    const struct {
        const char* model;
        int number;
        int low;
    } radios[] = {
        {"KRV-214B", 1, 150}, {"KRV-21", 2, 40}, {"KRV-47", 2, 70}, {"KRV-305", 3, 450}, {"KRV-214", 4, 150}};
    for (const auto& radio : radios) {
        std::string line = VhfLine("001");
        line.replace(14, 3, NumberField(radio.low)).replace(25, 3, NumberField(radio.low));
        for (int number = 0; number <= 10; ++number) {
            Bench bench(radio.model);
            const std::string said = bench.Tell("rt\r" + std::to_string(number) + "\rdl\r" + line + "\r");
            EXPECT_EQ(said, number == radio.number ? Ack : "") << radio.model << " opened with " << number;
        }
    }
}

TEST(WriteCommand, WithoutTheNeededOpeningIsIgnored) {
    Bench bench("KRV-214");
    EXPECT_EQ(bench.Tell("dl\r" + VhfLine("001") + "\r"), "");
    EXPECT_NE(bench.m_link.m_complaints.find("without the rt opening"), std::string::npos);
}

TEST(WriteCommand, NeedsTheOpeningAgainForTheNextTransfer) {
    Bench bench("KRV-214");
    EXPECT_EQ(bench.Tell("rt\r4\rdl\r" + VhfLine("001") + "\r" + EndLine("300")), Ack);
    EXPECT_EQ(bench.Tell("dl\r" + VhfLine("001") + "\r"), "");
}

TEST(RadioWithoutOpeningNumber, IsDeafToAnOpeningUntilThePortIsClosed) {
    Bench bench("KRV-610", "FM 138-174");
    EXPECT_EQ(bench.Tell("rt\r1\rdl\r" + VhfLine("001") + "\r"), "");
    bench.m_radio.PortClosed();
    EXPECT_EQ(bench.Tell("dl\r" + VhfLine("001") + "\r"), Ack);
}

TEST(ReadCommand, OfAnOpenedRadioTakesEffectWithTheBlankBehindIt) {
    Bench bench("KRV-214", "", {}, {VhfLine("001").c_str()});
    EXPECT_EQ(bench.Tell("rt\r4\rul\r"), "");
    EXPECT_EQ(bench.Tell(" "), VhfLine("001") + "\r300\r");
}

TEST(ReadCommand, OfAnOpenedRadioWithoutTheBlankIsIgnored) {
    Bench bench("KRV-214");
    EXPECT_EQ(bench.Tell("rt\r4\rul\rx "), "");
    EXPECT_NE(bench.m_link.m_complaints.find("blank"), std::string::npos);
}

TEST(ReadCommand, OfARadioWithoutOpeningNeedsNoBlank) {
    Bench bench("ORV-12");
    EXPECT_EQ(bench.Tell("ul\r"),
              "001           118.0000RX 118.0000TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N\r300\r");
}

TEST(CountedCommands, AreTakenByARadioOfMoreThan202MemoriesOnly) {
    const struct {
        const char* command;
        bool module;
        bool other;
    } cases[] = {
        {"dl", true, true},      {"DL500", true, false},  {"DL203", true, false},  {"DL202", false, false},
        {"DL501", false, false}, {"DL 99", false, false}, {"DL", false, false},    {"DL0500", false, false},
        {"Dl", false, false},    {"dl500", false, false}, {" dl", false, false},   {"", false, false},
        {"SV", false, false},    {"\ndl", false, false},  {"DLfff", false, false},
    };
    for (const auto& entry : cases) {
        Bench module("KDRV-4xxx", "K6 3-BAND");
        std::string line = VhfLine("001");
        line.replace(14, 3, "040").replace(25, 3, "040");
        EXPECT_EQ(module.Tell(std::string(entry.command) + "\r" + line + "\r"), entry.module ? Ack : "")
            << entry.command;
        Bench other("KDRV-4xxx", "FM 30-50");
        EXPECT_EQ(other.Tell(std::string(entry.command) + "\r" + line + "\r"), entry.other ? Ack : "")
            << entry.command;
    }
}

TEST(CountedWrite, ReachesItsCountAndEndsWithEnd) {
    Bench bench("KDRV-4xxx", "K6 3-BAND");
    const auto Line = [](const char* number) {
        std::string line = VhfLine(number);
        return line.replace(14, 3, "040").replace(25, 3, "040") + "\r";
    };
    EXPECT_EQ(bench.Tell("DL400\r" + Line("300") + Line("400") + Line("401")), "\x05\x05");
    EXPECT_EQ(bench.m_link.m_completed, 0) << "memory 300 isn't the end of a counted list";
    bench.Tell(EndLine("END"));
    EXPECT_EQ(bench.m_link.m_completed, 1);
    EXPECT_EQ(bench.m_radio.Memories().size(), 2u);
    EXPECT_EQ(bench.Tell("UL500\r"), std::string(Empty610).replace(14, 3, "030").replace(25, 3, "030") +
                                         Line("300") + Line("400") + "END\r");
    EXPECT_EQ(bench.Tell("UL399\r").substr(77), Line("300") + "END\r");
    EXPECT_EQ(bench.Tell("ul\r").substr(77), "300\r") << "the uncounted command reaches 202 memories";
}

TEST(UncountedWrite, OfTheModuleReaches202Memories) {
    Bench bench("KDRV-4xxx", "K6 3-BAND");
    std::string line = VhfLine("202");
    line.replace(14, 3, "040").replace(25, 3, "040");
    EXPECT_EQ(bench.Tell("dl\r" + line + "\r"), Ack);
    EXPECT_EQ(bench.Tell(line.replace(0, 3, "203") + "\r"), "");
    EXPECT_EQ(bench.Tell(line.replace(0, 3, "END") + "\r"), "");
    EXPECT_EQ(bench.m_link.m_completed, 0);
}

TEST(Write, AcknowledgesEachGoodLineWithOneByteAndStoresIt) {
    Bench bench("KRV-610", "FM 138-174");
    EXPECT_EQ(bench.Tell("dl\r"), "") << "the command itself isn't acknowledged";
    EXPECT_EQ(bench.Tell(VhfLine("001") + "\r"), Ack);
    EXPECT_EQ(bench.Tell(VhfLine("202") + "\r"), Ack);
    EXPECT_EQ(bench.Tell(EndLine("300")), "");
    EXPECT_EQ(bench.m_link.m_acknowledgements, 2);
    EXPECT_EQ(bench.m_link.m_completed, 1);
    ASSERT_EQ(bench.m_radio.Memories().size(), 2u);
    EXPECT_EQ(FormatLongLine(bench.m_radio.Memories().at(202), "202"), VhfLine("202"));
}

TEST(Write, TakesALineOneCharacterAtATime) {
    Bench bench("KRV-610", "FM 138-174");
    bench.Tell("dl\r");
    const std::string line = VhfLine("001");
    for (char c : line)
        EXPECT_EQ(bench.Tell(std::string(1, c)), "");
    EXPECT_EQ(bench.Tell("\r"), Ack);
}

TEST(Write, LeavesAMalformedLineUnacknowledgedAndSaysWhy) {
    Bench bench("KRV-610", "FM 138-174");
    bench.Tell("dl\r");
    std::string bad = VhfLine("005");
    bad[43] = '0';
    bad[44] = '0';
    EXPECT_EQ(bench.Tell(bad + "\r"), "");
    EXPECT_TRUE(bench.m_radio.Memories().empty());
    EXPECT_NE(bench.m_link.m_complaints.find("position 43"), std::string::npos) << bench.m_link.m_complaints;
    EXPECT_EQ(bench.Tell(VhfLine("005") + "\r"), Ack) << "the next line is taken on its own";
}

TEST(Write, SurvivesAnEndlessLine) {
    Bench bench("KRV-610", "FM 138-174");
    EXPECT_EQ(bench.Tell("dl\r" + std::string(100000, 'x') + "\r"), "");
    EXPECT_EQ(bench.Tell(VhfLine("005") + "\r"), Ack);
}

TEST(Write, EndsOnAnEndLineWithoutItsBlanksButComplains) {
    Bench bench("KRV-610", "FM 138-174");
    bench.Tell("dl\r300\r");
    EXPECT_EQ(bench.m_link.m_completed, 1);
    EXPECT_NE(bench.m_link.m_complaints.find("74 blanks"), std::string::npos);
    Bench good("KRV-610", "FM 138-174");
    good.Tell("dl\r" + EndLine("300"));
    EXPECT_EQ(good.m_link.m_complaints, "");
}

TEST(Write, IsForgottenWhenThePortIsClosedButItsLinesStay) {
    Bench bench("KRV-610", "FM 138-174");
    bench.Tell("dl\r" + VhfLine("007") + "\r" + "008 half");
    bench.m_radio.PortClosed();
    EXPECT_EQ(bench.Tell(VhfLine("008") + "\r"), "") << "no transfer is open";
    EXPECT_EQ(bench.Tell("ul\r"), std::string("[key 500]") + Empty610 + VhfLine("007") + "\r300\r");
}

TEST(Write, IsNotUnderstoodByRadiosThatCanOnlyBeRead) {
    for (const char* model : {"ORV-12", "KDAR-2000"}) {
        Bench bench(model);
        bench.Tell("dl\r");
        EXPECT_EQ(bench.m_link.m_begun, 0) << model;
    }
}

TEST(Read, SendsMemoriesThatHoldDataInOrder) {
    Bench bench("KRV-214B", "", {}, {VhfLine("122").c_str(), VhfLine("001").c_str(), VhfLine("019").c_str()});
    EXPECT_EQ(bench.Tell("rt\r1\rul\r "),
              VhfLine("001") + "\r" + VhfLine("019") + "\r" + VhfLine("122") + "\r300\r");
    EXPECT_EQ(bench.m_link.m_lines, 3);
    EXPECT_EQ(bench.m_link.m_completed, 1);
}

TEST(Read, AlwaysSendsMemory1) {
    Bench bench("KRV-610", "FM 138-174", {}, {VhfLine("005").c_str()});
    EXPECT_EQ(bench.Tell("ul\r"), std::string("[key 500]") + Empty610 + VhfLine("005") + "\r300\r");
}

TEST(Read, OfAllRowsSendsEmptyOnesToo) {
    AnalogHabits habits;
    habits.allRows = true;
    Bench bench("KRV-610", "FM 138-174", habits);
    const std::string said = bench.Tell("ul\r");
    EXPECT_EQ(bench.m_link.m_lines, 202);
    EXPECT_NE(said.find("\r202           138.0000RX"), std::string::npos);
}

TEST(Read, WaitsForTheKeyOnModelsThatHaveOne) {
    AnalogHabits habits;
    habits.keyDelay = 42ms;
    for (const AnalogModel& model : AnalogModels()) {
        if (model.openingNumber != 0)
            continue;
        const std::string name(model.name);
        const bool waits = name.starts_with("KRV-6") || name == "KDRV-8400";
        Bench bench(name.c_str(), std::string(model.band).c_str(), habits);
        EXPECT_EQ(bench.Tell("ul\r").starts_with("[key 42]"), waits) << name;
    }
}

TEST(Read, PrintsItsBannerFirst) {
    AnalogHabits habits;
    habits.banner = "HELLO";
    Bench bench("KRV-610", "FM 138-174", habits);
    EXPECT_TRUE(bench.Tell("ul\r").starts_with("[key 500]HELLO\r001 "));
}

TEST(Read, HasABannerOfItsOwnWithoutTheTextThatAReaderLooksFor) {
    for (const AnalogModel& model : AnalogModels()) {
        RecordingLink link;
        AnalogRadio radio(model, {}, {}, link);
        for (char c : "rt\r" + std::to_string(model.openingNumber) + "\r")
            if (model.openingNumber != 0)
                radio.Hear(static_cast<uint8_t>(c));
        for (char c : std::string("ul\r "))
            radio.Hear(static_cast<uint8_t>(c));
        const std::string said = link.Said();
        const std::string banner = said.substr(0, said.find('\r'));
        EXPECT_NE(banner.find(model.name), std::string::npos) << model.name << ": " << said.substr(0, 80);
        EXPECT_EQ(banner.find("001"), std::string::npos) << banner;
    }
}

TEST(Read, InShortFormLeavesOutReceiveToneAndCode) {
    AnalogHabits habits;
    habits.shortForm = true;
    Bench bench("KRV-214B", "", habits, {VhfLine("001").c_str()});
    EXPECT_EQ(bench.Tell("rt\r1\rul\r "),
              "001 TOWER1    150.0000RX 151.2500TX CTCSS: 12TX DPL: 023TX 1_3__N\r300\r");
}

TEST(Read, NamesItsGuardsIfAskedTo) {
    AnalogHabits habits;
    habits.guardNames = true;
    const std::string guards[] = {VhfLine("101"), VhfLine("102")};
    Bench bench("KRV-214", "", habits, {VhfLine("001").c_str(), guards[0].c_str(), guards[1].c_str()});
    EXPECT_EQ(bench.Tell("rt\r4\rul\r "),
              VhfLine("001") + "\rGD1" + guards[0].substr(3) + "\rGD2" + guards[1].substr(3) + "\r300\r");
    Bench plain("KRV-214", "", {}, {VhfLine("001").c_str(), guards[0].c_str(), guards[1].c_str()});
    EXPECT_EQ(plain.Tell("rt\r4\rul\r "), VhfLine("001") + "\r" + guards[0] + "\r" + guards[1] + "\r300\r");
}

TEST(Read, GivesNoGuardNamesOnABandWithoutGuards) {
    AnalogHabits habits;
    habits.guardNames = true;
    habits.allRows = true;
    Bench bench("KRV-620", "FM 138-174", habits);
    EXPECT_EQ(bench.Tell("ul\r").find("GD"), std::string::npos);
}

TEST(Read, WithoutAnEndLineStopsBehindTheLastMemory) {
    AnalogHabits habits;
    habits.endLine = false;
    Bench bench("KRV-214B", "", habits, {VhfLine("001").c_str()});
    EXPECT_EQ(bench.Tell("rt\r1\rul\r "), VhfLine("001") + "\r");
}

TEST(Parity, IsSetBehindTheNumberFieldButNotOnTheLineEnd) {
    AnalogHabits habits;
    habits.parity = Parity::Text;
    habits.banner = "AB";
    Bench bench("KRV-214B", "", habits, {VhfLine("001").c_str()});
    std::string expected = VhfLine("001");
    for (size_t k = 3; k < expected.size(); ++k)
        expected[k] = static_cast<char>(expected[k] | 0x80);
    EXPECT_EQ(bench.Tell("rt\r1\rul\r "), "AB\r" + expected + "\r300\r");
}

TEST(Parity, OfAllCharactersIncludesBannerNumbersAndEndLine) {
    AnalogHabits habits;
    habits.parity = Parity::All;
    habits.banner = "AB";
    Bench bench("KRV-214B", "", habits, {VhfLine("001").c_str()});
    const std::string said = bench.Tell("rt\r1\rul\r ");
    EXPECT_EQ(CountOf(said, "\r"), 3);
    for (char c : said)
        EXPECT_TRUE(c == '\r' || (c & 0x80)) << static_cast<int>(c);
}

TEST(Parity, OfAllBytesIncludesLineEndsAndAcknowledgements) {
    AnalogHabits habits;
    habits.parity = Parity::Bytes;
    habits.banner = "AB";
    Bench bench("KRV-214B", "", habits);
    std::string expected = "AB\r" + VhfLine("001") + "\r300\r";
    for (char& c : expected)
        c = static_cast<char>(c | 0x80);
    EXPECT_EQ(bench.Tell("rt\r1\rdl\r" + VhfLine("001") + "\r"), "\x85");
    bench.Tell(EndLine("300"));
    EXPECT_EQ(bench.Tell("rt\r1\rul\r "), expected);
    EXPECT_EQ(bench.m_link.m_complaints, "") << "what it receives has no such bits";
}

TEST(Radio, HearsNothingWhileItSends) {
    Bench bench("KRV-610", "FM 138-174");
    bench.Tell("ul\r");
    bench.m_link.m_sending = true;
    EXPECT_EQ(bench.Tell("ul\r"), "");
    bench.m_link.m_sending = false;
    EXPECT_NE(bench.Tell("ul\r"), "");
}

TEST(Radio, IsAtRestOnlyBetweenTwoDialogues) {
    Bench bench("KRV-214");
    EXPECT_TRUE(bench.m_radio.IsAtRest());
    for (const char* part : {"r", "t\r", "4\r", "dl\r", "001"}) {
        bench.Tell(part);
        EXPECT_FALSE(bench.m_radio.IsAtRest()) << part;
    }
    bench.Tell("\r" + EndLine("300"));
    EXPECT_TRUE(bench.m_radio.IsAtRest());
    bench.Tell("rt\r4\rul\r ");
    EXPECT_TRUE(bench.m_radio.IsAtRest());
    bench.m_link.m_sending = true;
    EXPECT_FALSE(bench.m_radio.IsAtRest());
}

TEST(Radio, SavesItsMemoriesAfterACompletedWrite) {
    const TempFolder folder;
    AnalogHabits habits;
    habits.memoryFile = folder.File("radio.txt");
    Bench bench("KRV-610", "FM 138-174", habits);
    bench.Tell("dl\r" + VhfLine("009") + "\r");
    EXPECT_EQ(ReadFileIfAny(habits.memoryFile), "");
    bench.Tell(EndLine("300"));
    EXPECT_EQ(ReadFile(habits.memoryFile), "# KRV-610 FM 138-174\n" + VhfLine("009") + "\n");
}

} // namespace
