#include "campaign/Checks.h"

#include "catalogue/RadioTables.h"
#include "catalogue/ZoneSlots.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <utility>

using namespace RadioCatalogue;

namespace Campaign {

namespace {

using Sentences = std::vector<std::string>;

// Typed from the table of failures, not taken from the drivers.
constexpr const char* PortBox = "Invalid COM Port (or Port in use)";
constexpr const char* AnalogTimeoutBox =
    "Timeout Error\nVerify Radio is in PC Download mode\nand correct COM port is selected";
constexpr const char* DigitalTimeoutBox =
    "Timeout Error\nVerify Radio is in PC Download mode (3-8)\nand correct COM port is selected";
constexpr const char* NoDataBox = "No data selected for transfer to Radio";
constexpr const char* OldSoftwareBox = "Selected operation requires updated software in Radio";
constexpr const char* UnsupportedBox = "The requested function is not supported\nby the firware in the Radio";

// Milliseconds.
constexpr int64_t DigitalSilence = 30'000, AnalogSilence = 5'000, Opening = 6'000, ResultPause = 1'000,
                  Slack = 500;

/// Looks at one outcome.
class Judge {
public:
    Judge(const Scenario& scenario, const Job& job, const World& before, const Outcome& outcome)
        : m_job(job), m_before(before), m_outcome(outcome), m_digital(scenario.radio.IsDigital()) {}

    Sentences Broken() const { return m_broken; }

    bool Happened(std::initializer_list<FaultKind> kinds) const { return Count(kinds) > 0; }
    /// How many faults of these kinds happened.
    int Count(std::initializer_list<FaultKind> kinds) const {
        int count = 0;
        for (size_t i = 0; i < m_job.faults.size(); ++i)
            count += m_outcome.happened[i] &&
                     std::find(kinds.begin(), kinds.end(), m_job.faults[i].kind) != kinds.end();
        return count;
    }
    bool AnyHappened() const {
        return std::find(m_outcome.happened.begin(), m_outcome.happened.end(), true) !=
               m_outcome.happened.end();
    }

    // ---- The end of every transfer ----

    void CheckEnd() {
        Expect(!m_outcome.portIsOpen, "the port is still open");
        Expect(m_outcome.contextIsClean, "the context still points to the port or the window");
        Expect(!m_outcome.logIsOpen, "a log is still open");
        const int64_t limit = (m_digital ? DigitalSilence : AnalogSilence + Opening) + ResultPause + Slack;
        Expect(m_outcome.silence <= limit,
               "the transfer went on for " + std::to_string(m_outcome.silence) + " ms after the last byte");
    }

    void CheckTexts() {
        const auto box = [&](const std::string& text) {
            Expect(!m_outcome.boxes.empty() && m_outcome.boxes.back() == text,
                   "the box isn't \"" + text + "\" but \"" +
                       (m_outcome.boxes.empty() ? "" : m_outcome.boxes.back()) + "\"");
        };
        const std::string item = std::to_string(m_outcome.index - 1);
        switch (m_outcome.status) {
        case TransferComplete:
            Expect(m_outcome.lastStatus.starts_with("Transfer Complete."), "the window doesn't say Complete");
            return ExpectNoFailureBox();
        case TransferPortError:
            return box(PortBox);
        case TransferTimeout:
            return box(m_digital ? DigitalTimeoutBox : AnalogTimeoutBox);
        case TransferCommunicationError:
            return box((m_digital ? "Radio rejected channel " : "Radio rejected item: ") + item);
        case TransferChecksumError:
            Expect(m_digital, "an analog transfer has no checksums");
            return box("Checksum Error on channel " + item);
        case TransferNoDataSelected:
            return box(NoDataBox);
        case TransferInvalidTransmitData:
            return box(OldSoftwareBox);
        case TransferUnsupported:
            return box(UnsupportedBox);
        case TransferCancelled:
            if (m_digital)
                Expect(m_outcome.lastStatus == "Transfer Cancelled.", "the window doesn't say Cancelled");
            return ExpectNoFailureBox();
        default:
            m_broken.push_back("status " + std::to_string(m_outcome.status));
        }
    }

    void CheckZones() {
        if (!m_digital)
            return;
        std::map<std::string, int> taken;
        for (const auto& [row, texts] : m_outcome.world.program.rows) {
            // A shadow that was read has the flag and no slot.
            const bool shadow = std::strtol(texts[MFLG].c_str(), nullptr, 16) & ShadowIndexMask;
            const bool holds = !shadow && (std::strtol(texts[TFLG].c_str(), nullptr, 16) & ZoneTakenFlag);
            if (row == 0) {
                Expect(!holds, "the default row holds a zone slot");
                continue;
            }
            if (!holds)
                continue;
            Expect(!texts[ZONE].empty(), "row " + std::to_string(row) + " holds a slot of no zone");
            ++taken[texts[ZONE]];
        }
        int total = 0, counted = 0;
        for (const auto& [zone, count] : taken) {
            Expect(count <= ZoneCapacity, "zone " + zone + " has " + std::to_string(count) + " memories");
            total += count;
        }
        for (int zone = 0; zone < ZonesPerPage; ++zone)
            counted += m_outcome.world.program.zones[static_cast<size_t>(zone)];
        Expect(total == counted,
               std::to_string(total) + " rows hold a zone slot, " + std::to_string(counted) + " are counted");
    }

    // ---- The page ----

    /// A write changes nothing on the page but transfer flags.
    void CheckPageOfWrite() {
        const auto& rows = m_outcome.world.program.rows;
        Expect(rows.size() == m_before.program.rows.size(), "a write has made or emptied rows of the page");
        for (const auto& [row, texts] : m_before.program.rows) {
            const auto found = rows.find(row);
            if (found == rows.end())
                continue;
            RowTexts now = found->second;
            now[TFLG] = texts[TFLG];
            Expect(now == texts, "a write has changed row " + std::to_string(row) + " of the page");
        }
    }

    // ---- Helpers ----

    void Expect(bool condition, const std::string& otherwise) {
        if (!condition)
            m_broken.push_back(otherwise);
    }

    bool Digital() const { return m_digital; }

private:
    void ExpectNoFailureBox() {
        for (const std::string& text : m_outcome.boxes)
            Expect(text.starts_with("The following operating modes") || text.starts_with("This radio") ||
                       text.starts_with("Close this dialog"),
                   "the box \"" + text + "\" in a transfer that hasn't failed");
    }

    const Job& m_job;
    const World& m_before;
    const Outcome& m_outcome;
    bool m_digital;
    Sentences m_broken;
};

std::string Trimmed(const std::string& text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool Writes(TransferMode mode) {
    return mode == WriteChannelsMode;
}

std::string Shown(const std::map<int, bool>& numbers) {
    std::string text;
    for (const auto& [number, set] : numbers)
        text += (text.empty() ? "" : ", ") + std::to_string(number);
    return text;
}

/// Numbers of memories that differ.
template <class List>
std::map<int, bool> Differences(const List& one, const List& other) {
    std::map<int, bool> numbers;
    for (const auto& [number, memory] : one)
        if (const auto found = other.find(number); found == other.end() || !(found->second == memory))
            numbers[number] = true;
    for (const auto& [number, memory] : other)
        if (!one.contains(number))
            numbers[number] = true;
    return numbers;
}

std::map<int, bool> Differences(const RadioState& one, const RadioState& other) {
    return one.IsDigital() ? Differences(one.digital.memories, other.digital.memories)
                           : Differences(one.analog, other.analog);
}

/// Each memory is as before, as after the whole transfer, or erased where a purge is allowed.
template <class List>
std::map<int, bool> Strangers(const List& now, const List& before, const List& after, bool mayBeErased) {
    std::map<int, bool> numbers;
    for (const auto& [number, memory] : now) {
        const auto was = before.find(number), willBe = after.find(number);
        if (!(was != before.end() && was->second == memory) &&
            !(willBe != after.end() && willBe->second == memory))
            numbers[number] = true;
    }
    for (const auto& [number, memory] : before)
        if (!now.contains(number) && after.contains(number) && !mayBeErased)
            numbers[number] = true;
    return numbers;
}

/// Numbers of the memories that a write sends, in their order. A shadow comes after all primaries.
std::vector<int> OrderOf(const Outcome& clean) {
    std::vector<int> order;
    const bool digital = clean.world.radio.IsDigital();
    for (const std::string& line : clean.sent) {
        if (!digital && line.size() > 70 && std::isdigit(static_cast<unsigned char>(line[0])))
            order.push_back(std::atoi(line.substr(0, 3).c_str()));
        if (digital && line.starts_with("T143")) {
            int number = static_cast<int>(std::strtol(line.substr(4, 4).c_str(), nullptr, 16));
            // The old layout has the guards of the longer list at 231 and 232.
            const auto& memories = clean.world.radio.digital.memories;
            if (!memories.contains(number) && memories.contains(number + 270))
                number += 270;
            order.push_back(number);
        }
    }
    return order;
}

/// A memory that has arrived although one that is sent before it is missing, and the missing one; 0 for none.
std::pair<int, int> FirstGap(const World& before, const Outcome& clean, const Outcome& faulty) {
    const auto gap = [&](const auto& was, const auto& all, const auto& now) {
        const auto has = [](const auto& list, int number, const auto& memory) {
            const auto found = list.find(number);
            return found != list.end() && found->second == memory;
        };
        int missing = 0;
        for (const int number : OrderOf(clean)) {
            const auto sent = all.find(number);
            if (sent == all.end())
                continue;
            if (!has(now, number, sent->second))
                missing = missing ? missing : number;
            else if (missing && !has(was, number, sent->second))
                return std::pair(number, missing);
        }
        return std::pair(0, 0);
    };
    return clean.world.radio.IsDigital()
               ? gap(before.radio.digital.memories, clean.world.radio.digital.memories,
                     faulty.world.radio.digital.memories)
               : gap(before.radio.analog, clean.world.radio.analog, faulty.world.radio.analog);
}

} // namespace

std::vector<std::string> BrokenConditions(const Scenario& scenario, const Job& job, const World& before,
                                          const Outcome& clean, const Outcome& faulty) {
    Judge judge(scenario, job, before, faulty);
    judge.CheckEnd();
    judge.CheckTexts();
    judge.CheckZones();
    const TransferStatus status = faulty.status;

    // What the status says must have happened.
    const auto allowed = [&](TransferStatus each, bool reason) {
        judge.Expect(status != each || clean.status == each || reason,
                     "nothing that happened gives status " + std::to_string(each));
    };
    allowed(TransferPortError, judge.Happened({FaultKind::PortTaken}));
    // A stamp that loses a zero keeps its checksum: the program takes the radio for another one, and asks.
    const auto asksToPurge = [](const Outcome& outcome) {
        return std::any_of(outcome.boxes.begin(), outcome.boxes.end(),
                           [](const std::string& text) { return text.starts_with("This radio"); });
    };
    const bool asksMore = asksToPurge(faulty) && !asksToPurge(clean);
    allowed(TransferCancelled, judge.Happened({FaultKind::Cancel}) || (asksMore && !job.acceptsPurge));
    allowed(TransferNoDataSelected, false);
    const bool garbled =
        faulty.spoiltToProgram || faulty.spoiltToRadio ||
        judge.Happened({FaultKind::WrongChecksum, FaultKind::WrongChecksumAlways, FaultKind::Restart,
                        FaultKind::CutLine, FaultKind::Noise, FaultKind::Torn, FaultKind::Delayed});
    allowed(TransferChecksumError, garbled);
    allowed(TransferCommunicationError,
            garbled || judge.Happened({FaultKind::Refusal, FaultKind::RefusalAlways, FaultKind::EndRecord,
                                       FaultKind::Twice, FaultKind::LineBefore}));
    // A radio that answers late, or only once more, still answers.
    const std::initializer_list<FaultKind> answers = {
        FaultKind::Wait,    FaultKind::Joined,        FaultKind::LineFeed, FaultKind::BusyErasing,
        FaultKind::Refusal, FaultKind::WrongChecksum, FaultKind::Torn,     FaultKind::LateAck};
    const int happened = static_cast<int>(std::count(faulty.happened.begin(), faulty.happened.end(), true));
    allowed(TransferTimeout, judge.Count(answers) < happened);
    if (happened == 1 && judge.Count(answers) == 1)
        judge.Expect(status == clean.status,
                     "the transfer didn't survive one small fault: status " + std::to_string(status));
    allowed(TransferInvalidTransmitData, faulty.forgedToProgram);
    if (!judge.AnyHappened())
        judge.Expect(status == clean.status, "nothing happened, but the status is " + std::to_string(status) +
                                                 " and not " + std::to_string(clean.status));
    if (judge.Happened({FaultKind::PortTaken}))
        judge.Expect(status == TransferPortError, "the port was taken, but the status says otherwise");

    // What the radio holds.
    const RadioState& radio = faulty.world.radio;
    if (Writes(job.mode)) {
        judge.CheckPageOfWrite();
        // Without checksums a changed line is as good as a right one.
        const bool believable = judge.Digital() ? !faulty.forgedToRadio : !faulty.spoiltToRadio;
        // A radio that refuses a row and says that it took it can't be found out.
        const bool lied =
            judge.Happened({FaultKind::LineBefore}) &&
            (faulty.spoiltToRadio ||
             judge.Happened({FaultKind::Refusal, FaultKind::RefusalAlways, FaultKind::EndRecord}));
        // An answer that is sent twice stands in for that of a later row, which may be lost: no count can
        // tell.
        const bool replaced = judge.Happened({FaultKind::Twice, FaultKind::LineBefore}) &&
                              (faulty.spoiltToRadio || judge.Happened({FaultKind::Delayed}));
        const bool silent =
            judge.Digital() && judge.Happened({FaultKind::Twice}) && judge.Happened({FaultKind::Silence});
        if (status == TransferComplete && clean.status == TransferComplete && believable && !lied &&
            !asksMore && !replaced && !silent)
            judge.Expect(radio.HoldsTheSame(clean.world.radio),
                         "a complete write, but these memories of the radio differ: " +
                             Shown(Differences(radio, clean.world.radio)));
        if (status != TransferComplete && believable) {
            const bool purges = judge.Digital();
            const std::map<int, bool> strangers =
                judge.Digital()
                    ? Strangers(radio.digital.memories, before.radio.digital.memories,
                                clean.world.radio.digital.memories, purges)
                    : Strangers(radio.analog, before.radio.analog, clean.world.radio.analog, false);
            judge.Expect(strangers.empty(),
                         "an unfinished write, but these memories of the radio are neither "
                         "as before nor as sent: " +
                             Shown(strangers));
        }
        // A purge whose wait message is garbled is sent again, and answered twice.
        const bool busyTwice = faulty.spoiltToProgram && judge.Happened({FaultKind::BusyErasing});
        if (status != TransferComplete && believable && !lied && !replaced && !busyTwice &&
            !judge.Happened({FaultKind::Twice})) {
            const auto [later, missing] = FirstGap(before, clean, faulty);
            judge.Expect(later == 0, "memory " + std::to_string(later) + " has reached the radio, but " +
                                         std::to_string(missing) + ", which was sent before it, hasn't");
        }
    } else if (!faulty.forgedToRadio) {
        judge.Expect(Differences(radio, before.radio).empty(),
                     "a read has changed memories of the radio: " + Shown(Differences(radio, before.radio)));
    }

    // A radio may repeat a garbled line of a list only once, and one that has answered once too often is a
    // line ahead.
    const bool garbledTwice =
        judge.Count({FaultKind::Lost, FaultKind::Doubled, FaultKind::Changed, FaultKind::NoiseBefore,
                     FaultKind::NoiseAfter, FaultKind::CutLine, FaultKind::WrongChecksum,
                     FaultKind::WrongChecksumAlways, FaultKind::Twice, FaultKind::Noise}) > 1;
    // What the page holds after a read.
    if (job.mode == ReadChannelsMode) {
        const bool believable =
            judge.Digital()
                ? !faulty.forgedToProgram
                : !faulty.spoiltToProgram &&
                      !judge.Happened({FaultKind::CutLine, FaultKind::Noise, FaultKind::LineBefore});
        const auto& rows = faulty.world.program.rows;
        const auto& all = clean.world.program.rows;
        // An analog radio that falls silent near its last row counts as complete.
        const bool endedBySilence = !judge.Digital() && faulty.silence >= AnalogSilence;
        if (believable) {
            for (const auto& [row, texts] : rows) {
                const auto found = all.find(row);
                judge.Expect(found != all.end() && found->second == texts,
                             "row " + std::to_string(row) + " isn't the radio's memory");
            }
            // A radio that leaves out a memory, or ends its list early, has told all, for all that anyone can
            // know: the protocol has no count.
            if (status == TransferComplete && clean.status == TransferComplete &&
                !judge.Happened({FaultKind::EndRecord, FaultKind::LineBefore}) && !endedBySilence &&
                !garbledTwice)
                for (const auto& [row, texts] : all)
                    judge.Expect(rows.contains(row),
                                 "a complete read, but memory " + std::to_string(row) + " hasn't come");
        }
    }
    if (job.mode == ReadConfigMode && status == TransferComplete && clean.status == TransferComplete &&
        !faulty.forgedToProgram && !judge.Happened({FaultKind::LineBefore, FaultKind::EndRecord}) &&
        !garbledTwice)
        judge.Expect(faulty.configLines == clean.configLines, "a complete read of another configuration");

    // Breaches of the protocol, as the radio counts them.
    const bool mayBreach =
        faulty.spoiltToRadio || faulty.spoiltToProgram ||
        judge.Happened({FaultKind::Restart, FaultKind::Twice, FaultKind::LineBefore, FaultKind::WrongChecksum,
                        FaultKind::WrongChecksumAlways, FaultKind::MissedSpeed, FaultKind::CutLine,
                        FaultKind::EndRecord, FaultKind::RefusalAlways}) ||
        // Cancelled while the radio changes its speed.
        (judge.Happened({FaultKind::Cancel}) && faulty.complaints.starts_with("hears garbage"));
    if (!mayBreach)
        judge.Expect(faulty.violations == 0, "the program broke the protocol: " + faulty.complaints);
    return judge.Broken();
}

std::vector<std::string> BrokenConditions(const Scenario& scenario, const Job& job, const World& before,
                                          const Outcome& clean) {
    Judge judge(scenario, job, before, clean);
    judge.CheckEnd();
    judge.CheckTexts();
    judge.CheckZones();
    judge.Expect(clean.violations == 0, "the program broke the protocol: " + clean.complaints);
    judge.Expect(clean.status == TransferComplete || clean.status == TransferCancelled ||
                     clean.status == TransferNoDataSelected || clean.status == TransferInvalidTransmitData ||
                     (clean.status == TransferTimeout && !scenario.radio.IsDigital() &&
                      !scenario.radio.analogHabits.endLine) ||
                     (clean.status == TransferUnsupported && !scenario.radio.IsDigital()),
                 "without faults the status is " + std::to_string(clean.status));
    if (Writes(job.mode))
        judge.CheckPageOfWrite();
    if (clean.status != TransferComplete)
        return judge.Broken();

    const bool refusedModes = !job.acceptsModes && !clean.boxes.empty();
    // Memories that the old layout has no number for don't travel.
    const auto travels = [&](int number) {
        // Without an opening number a radio counts as one of 200 memories.
        if (const Simulator::AnalogModel* model = scenario.radio.analogModel)
            return !Writes(job.mode) || model->openingNumber != 0 || number <= 200;
        return scenario.target->radio != Kdrv716B || scenario.target->firmware[1] == '2' ||
               number <= RP25Memories || number > NP25Memories;
    };
    const auto isMemory = [](const std::string& frequency, double hertz, const std::string& description,
                             const std::string& text) {
        return std::abs(std::strtod(frequency.c_str(), nullptr) * 1e6 - hertz) < 50 &&
               Trimmed(description) == Trimmed(text);
    };
    if (Writes(job.mode) && !refusedModes)
        for (const auto& [row, selected] : job.selected) {
            const auto found = before.program.rows.find(row);
            if (found == before.program.rows.end())
                continue;
            const RowTexts& texts = found->second;
            if (!travels(row))
                continue;
            bool isThere = false;
            if (const auto memory = clean.world.radio.digital.memories.find(row);
                memory != clean.world.radio.digital.memories.end())
                isThere = isMemory(texts[RFRQ], static_cast<double>(memory->second.rxFrequency),
                                   memory->second.description, texts[DESC]) &&
                          isMemory(texts[TFRQ], static_cast<double>(memory->second.txFrequency), "", "");
            if (const auto memory = clean.world.radio.analog.find(row);
                memory != clean.world.radio.analog.end())
                isThere =
                    isMemory(texts[RFRQ], static_cast<double>(memory->second.rxFrequency) * 100,
                             memory->second.description, texts[DESC]) &&
                    isMemory(texts[TFRQ], static_cast<double>(memory->second.txFrequency) * 100, "", "");
            judge.Expect(isThere, "row " + std::to_string(row) + " isn't in the radio");
        }
    if (Writes(job.mode) && scenario.radio.IsDigital() && !refusedModes && !before.program.stamp.empty())
        for (const auto& [row, held] : before.program.heldRows)
            judge.Expect(clean.world.radio.digital.memories.contains(row) ||
                             !before.program.rows.contains(row) ||
                             !before.radio.digital.memories.contains(row),
                         "memory " + std::to_string(row) + ", which the program had put there, is gone");
    if (job.mode == ReadChannelsMode) {
        const auto& rows = clean.world.program.rows;
        const auto check = [&](int number, double hertz, const std::string& description) {
            const auto found = rows.find(number);
            judge.Expect(found != rows.end() &&
                             isMemory(found->second[RFRQ], hertz, found->second[DESC], description),
                         "memory " + std::to_string(number) + " hasn't come as it is");
        };
        for (const auto& [number, memory] : before.radio.digital.memories)
            if (number > 0 && travels(number))
                check(number, static_cast<double>(memory.rxFrequency), memory.description);
        for (const auto& [number, memory] : before.radio.analog)
            check(number, static_cast<double>(memory.rxFrequency) * 100, memory.description);
    }
    return judge.Broken();
}

} // namespace Campaign
