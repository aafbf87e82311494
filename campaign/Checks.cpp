#include "campaign/Checks.h"

#include "campaign/Judge.h"
#include "catalogue/MemoryRow.h"
#include "transfer/TRecordDialogue.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <set>
#include <utility>

namespace Campaign {

namespace {

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

bool Sends(const Outcome& outcome, const std::string& start) {
    return std::any_of(outcome.sent.begin(), outcome.sent.end(),
                       [&](const std::string& line) { return line.starts_with(start); });
}

/// True if the program sent a record of this memory.
bool HasSent(const Outcome& outcome, const Simulator::DigitalMemory& memory) {
    const auto holds = [&](const std::string& line, Simulator::Layout layout) {
        const auto sent = Simulator::ParseMemory(layout, line, *outcome.world.radio.digitalModel);
        return sent && *sent == memory;
    };
    return std::any_of(outcome.sent.begin(), outcome.sent.end(), [&](const std::string& line) {
        return holds(line, Simulator::Layout::V1) || holds(line, Simulator::Layout::V2);
    });
}

/// How often the last line before the end of the transfer was sent.
int64_t TimesOfLastLine(const Outcome& outcome) {
    std::vector<std::string> lines = outcome.sent;
    if (!lines.empty() && lines.back().starts_with("T9"))
        lines.pop_back();
    return lines.empty() ? 0 : std::count(lines.begin(), lines.end(), lines.back());
}

/// The status that the table of failures gives for what a single fault does; TransferOk for a fault that a
/// transfer can survive.
TransferStatus StatusOf(FaultKind kind, bool writes, bool digital) {
    switch (kind) {
    case FaultKind::Silence:
    case FaultKind::Vanish:
    case FaultKind::NoAck:
    case FaultKind::MissedSpeed:
        return TransferTimeout;
    case FaultKind::RefusalAlways:
        return TransferCommunicationError;
    case FaultKind::EndRecord:
        return writes ? TransferCommunicationError : TransferOk;
    case FaultKind::WrongChecksumAlways:
        return TransferChecksumError;
    case FaultKind::Babble:
        return digital && writes ? TransferCommunicationError : TransferOk;
    default:
        return TransferOk;
    }
}

/// A single fault in a transfer that is complete without it has an effect that is known exactly.
void CheckOnly(Judge& judge, const Job& job, const Fault& fault, const Outcome& clean,
               const Outcome& faulty) {
    const bool writes = Writes(job.mode);
    const TransferStatus expected = StatusOf(fault.kind, writes, judge.Digital());
    const std::string name = NameOf(fault.kind);
    // A radio that fails behind its last answer has taken everything, and the list of an analog radio is over
    // with its last row.
    const bool survives =
        faulty.status == TransferComplete &&
        (writes ? faulty.world.radio.HoldsTheSame(clean.world.radio)
                : !judge.Digital() || faulty.world.program.rows == clean.world.program.rows);
    if (expected != TransferOk && !survives && !faulty.gaveUp &&
        !(fault.kind == FaultKind::Babble && faulty.index < 0))
        judge.Expect(faulty.status == expected, name + " gives status " + std::to_string(faulty.status) +
                                                    " and not " + std::to_string(expected));
    if (faulty.status == TransferTimeout &&
        (fault.kind == FaultKind::Silence || fault.kind == FaultKind::NoAck))
        judge.Expect(faulty.silence >= SilenceUntilTimeout(judge.Digital()),
                     "a time-out after " + std::to_string(faulty.silence) + " ms of silence");
    // A line that is refused or answered wrongly goes out once more, not more often.
    if (judge.Digital() && writes && faulty.status == expected &&
        (fault.kind == FaultKind::RefusalAlways || fault.kind == FaultKind::WrongChecksumAlways))
        judge.Expect(TimesOfLastLine(faulty) == 2,
                     name + ": the line was sent " + std::to_string(TimesOfLastLine(faulty)) + " times");
    constexpr int64_t refusalPause = 500;
    if (judge.Digital() && fault.kind == FaultKind::Refusal)
        judge.Expect(faulty.milliseconds >= clean.milliseconds + refusalPause,
                     "a refused line was repeated at once");
    // Shorter than any time-out.
    constexpr int patience = 4900;
    if (fault.kind == FaultKind::Delayed && fault.side == Side::ToProgram && fault.value <= patience)
        judge.Expect(faulty.status == clean.status,
                     "a delay of " + std::to_string(fault.value) + " ms ended the transfer");
}

/// After Cancel the transfer is over as soon as the line is out that was being sent.
void CheckCancel(Judge& judge, const Outcome& faulty) {
    if (faulty.cancelled < 0)
        return;
    // The commands of an analog radio are sent in one go.
    constexpr int64_t commands = 4'000;
    if (judge.Count() == 1)
        judge.Expect(faulty.status == TransferCancelled || faulty.milliseconds <= faulty.cancelled + commands,
                     "the transfer went on for " + std::to_string(faulty.milliseconds - faulty.cancelled) +
                         " ms after Cancel");
    if (faulty.status != TransferCancelled)
        return;
    int64_t later = 0;
    for (size_t i = 0; i < faulty.sent.size(); ++i)
        later += faulty.sentAt[i].begin > faulty.cancelled &&
                 (judge.Digital() ? !faulty.sent[i].starts_with("T9") : faulty.sent[i].size() > 70);
    judge.Expect(later <= (judge.Digital() ? 1 : 0),
                 std::to_string(later) + " more lines were sent after Cancel");
}

/// What counts as sent, and as held by the radio, is in the radio. A purge that the clean transfer doesn't do
/// brings the page's form of rows that the clean one leaves as the radio has them.
void CheckRowsSent(Judge& judge, const World& before, const Outcome& clean, const Outcome& faulty,
                   bool purgesMore) {
    const auto check = [&](const auto& now, const auto& all) {
        for (const int row : faulty.rowsSent) {
            const auto is = now.find(row), sent = all.find(row);
            judge.Expect(sent == all.end() ? is == now.end()
                                           : is != now.end() && (purgesMore || is->second == sent->second),
                         "row " + std::to_string(row) + " counts as sent, but the radio hasn't got it");
        }
    };
    if (!judge.Digital())
        return check(faulty.world.radio.analog, clean.world.radio.analog);
    check(faulty.world.radio.digital.memories, clean.world.radio.digital.memories);
    const ProgramState& program = faulty.world.program;
    if (program.stamp.empty() || program.stamp.utf8_string() != faulty.world.radio.digitalHabits.stamp ||
        program.heldStamp != program.stamp)
        return;
    for (const auto& [row, held] : program.heldRows)
        // Whether a memory was erased is open until the radio says so. An earlier write may have been
        // deceived.
        judge.Expect(faulty.world.radio.digital.memories.contains(row) ||
                         !clean.world.radio.digital.memories.contains(row) ||
                         !before.radio.digital.memories.contains(row),
                     "the program takes the radio to hold memory " + std::to_string(row));
}

/// A field that didn't come whole has the default row's text. The description, SCAN and MODE keep what came.
void CheckCutLines(Judge& judge, const std::map<int, RowTexts>& rows, const std::map<int, RowTexts>& all) {
    for (const auto& [row, texts] : rows) {
        const auto found = all.find(row);
        for (const Column column : {RFRQ, TFRQ, RTON, RCOD, TTON, TCOD}) {
            const std::string& text = texts[static_cast<size_t>(column)];
            judge.Expect((found != all.end() && text == found->second[static_cast<size_t>(column)]) ||
                             text == all.at(0)[static_cast<size_t>(column)],
                         "row " + std::to_string(row) + " has the remains of a field: " + text);
        }
    }
}

/// Noise becomes part of an analog line, except before the first memory: what is before that is a heading.
bool LosesLineToNoise(const Judge& judge) {
    return !judge.Digital() && judge.Happened({FaultKind::Noise}) && !(judge.Only() && judge.Only()->at == 1);
}

/// A radio has sent an answer twice, or an earlier one again, where a write doesn't pass over it. A digital
/// one also refuses the empty line that a doubled line end makes.
bool AnswersOnceTooOften(const Scenario& scenario, const Job& job, const Outcome& faulty) {
    const std::set<std::string> beforeTheStamp = {"hello", "speed", "modes", "version"};
    for (size_t i = 0; i < job.faults.size(); ++i) {
        const FaultKind kind = job.faults[i].kind;
        if (faulty.happened[i] && (kind == FaultKind::Twice || kind == FaultKind::LineBefore) &&
            !(scenario.radio.IsDigital() && beforeTheStamp.contains(faulty.states[i])))
            return true;
    }
    return scenario.radio.IsDigital() &&
           std::any_of(faulty.emptyLines.begin(), faulty.emptyLines.end(),
                       [&](const std::string& state) { return !beforeTheStamp.contains(state); });
}

} // namespace

std::vector<std::string> BrokenConditions(const Scenario& scenario, const Job& job, const World& before,
                                          const Outcome& clean, const Outcome& faulty) {
    Judge judge(scenario, job, before, faulty);
    judge.CheckEnd();
    judge.CheckTexts();
    judge.CheckZones();
    judge.CheckPauses();
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
    judge.Expect(!asksMore || faulty.forgedToProgram ||
                     judge.Count({FaultKind::Changed, FaultKind::Cancel}) < judge.Count(),
                 "nothing that happened makes this another radio");
    // A radio that never stops to send texts nobody asked for keeps a read, or a hello, going until the user
    // gives up. A write ends by itself.
    judge.Expect(!faulty.gaveUp || (judge.Happened({FaultKind::Babble}) &&
                                    (job.mode != WriteChannelsMode || faulty.index == HelloState)),
                 "the transfer ended only because the user gave up");
    allowed(TransferCancelled,
            judge.Happened({FaultKind::Cancel}) || faulty.gaveUp || (asksMore && !job.acceptsPurge));
    allowed(TransferNoDataSelected, false);
    const bool garbled =
        faulty.spoiltToProgram || faulty.spoiltToRadio ||
        judge.Happened({FaultKind::WrongChecksum, FaultKind::WrongChecksumAlways, FaultKind::Restart,
                        FaultKind::CutLine, FaultKind::Noise, FaultKind::Torn, FaultKind::Delayed});
    allowed(TransferChecksumError, garbled);
    allowed(TransferCommunicationError,
            garbled || judge.Happened({FaultKind::Refusal, FaultKind::RefusalAlways, FaultKind::EndRecord,
                                       FaultKind::Twice, FaultKind::LineBefore, FaultKind::Babble}));
    // A radio that answers late, or only once more, still answers.
    const std::initializer_list<FaultKind> answers = {
        FaultKind::Wait,    FaultKind::Joined,        FaultKind::LineFeed, FaultKind::BusyErasing,
        FaultKind::Refusal, FaultKind::WrongChecksum, FaultKind::Torn,     FaultKind::LateAck};
    const int happened = judge.Count();
    allowed(TransferTimeout, judge.Count(answers) < happened);
    if (happened == 1 && judge.Count(answers) == 1)
        judge.Expect(status == clean.status,
                     "the transfer didn't survive one small fault: status " + std::to_string(status));
    allowed(TransferInvalidTransmitData, faulty.forgedToProgram);
    if (const Fault* const only = judge.Only(); only && clean.status == TransferComplete)
        CheckOnly(judge, job, *only, clean, faulty);
    CheckCancel(judge, faulty);
    if (happened == 0)
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
        // A line whose wait message is garbled is sent again, and answered twice.
        const bool busyTwice = faulty.spoiltToProgram &&
                               judge.Happened({FaultKind::BusyErasing, FaultKind::BusyFor, FaultKind::Wait});
        // Each answer comes a line late after one that came twice or was that to the line before. Nobody can
        // tell then whether another fault kept the last rows from the radio: the protocol has no count.
        const bool replaced = (AnswersOnceTooOften(scenario, job, faulty) && judge.Count() > 1) ||
                              (judge.Digital() && busyTwice && judge.Count() > 2) ||
                              judge.Count({FaultKind::Delayed, FaultKind::LateAck}) > 1;
        // Nobody is asked where the whole page is sent: a radio whose stamp has lost a zero is purged at
        // once.
        const bool purgesMore =
            faulty.spoiltToProgram && Sends(faulty, "T204000011") && !Sends(clean, "T204000011");
        if (purgesMore && status == TransferComplete)
            for (const auto& [row, memory] : radio.digital.memories)
                judge.Expect(HasSent(faulty, memory),
                             "a purged radio holds memory " + std::to_string(row) + ", which wasn't sent");
        if (status == TransferComplete && clean.status == TransferComplete && believable && !lied &&
            !asksMore && !purgesMore && !replaced)
            judge.Expect(radio.HoldsTheSame(clean.world.radio),
                         "a complete write, but these memories of the radio differ: " +
                             Shown(Differences(radio, clean.world.radio)));
        if (status != TransferComplete && believable) {
            const bool purges = judge.Digital();
            std::map<int, bool> strangers =
                judge.Digital()
                    ? Strangers(radio.digital.memories, before.radio.digital.memories,
                                clean.world.radio.digital.memories, purges)
                    : Strangers(radio.analog, before.radio.analog, clean.world.radio.analog, false);
            // A purge that the clean transfer doesn't do sends rows that the clean one leaves as the radio
            // has them.
            std::erase_if(strangers, [&](const auto& memory) {
                return asksMore && HasSent(faulty, radio.digital.memories.at(memory.first));
            });
            judge.Expect(strangers.empty(),
                         "an unfinished write, but these memories of the radio are neither "
                         "as before nor as sent: " +
                             Shown(strangers));
        }
        if (clean.status != TransferComplete && clean.world.radio.HoldsTheSame(before.radio) &&
            !faulty.forgedToProgram)
            judge.Expect(Differences(radio, before.radio).empty(),
                         "a radio was written that must not be: " + Shown(Differences(radio, before.radio)));
        if (judge.Digital() && status != TransferComplete && Sends(faulty, "T204000011"))
            judge.Expect(faulty.world.program.stamp.empty() && faulty.world.program.heldStamp.empty(),
                         "the radio was purged in vain, but the program goes on to know it");
        // Another answer can stand in for an acknowledgement that didn't come.
        if (!judge.Digital() && status == TransferComplete && !faulty.spoiltToProgram &&
            !judge.Happened({FaultKind::Twice, FaultKind::LineBefore, FaultKind::Delayed}))
            judge.Expect(faulty.answers >= static_cast<int>(faulty.rowsSent.size()),
                         "a complete write, but the radio has acknowledged only " +
                             std::to_string(faulty.answers) + " lines");
        if (believable && !lied && !replaced && !busyTwice &&
            !judge.Happened({FaultKind::Twice, FaultKind::LineBefore}))
            CheckRowsSent(judge, before, clean, faulty, asksMore);
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
                : !faulty.spoiltToProgram && !judge.Happened({FaultKind::CutLine, FaultKind::LineBefore});
        const auto& rows = faulty.world.program.rows;
        const auto& all = clean.world.program.rows;
        if (judge.Digital() && status != TransferComplete && !faulty.world.program.stamp.empty() &&
            faulty.world.program.stamp != before.program.stamp)
            judge.Expect(faulty.world.program.readBrokeOff,
                         "the program takes what a read has left unfinished for all that the radio holds");
        if (!judge.Digital() && !faulty.spoiltToProgram && judge.Happened({FaultKind::CutLine}))
            CheckCutLines(judge, rows, all);
        // An analog radio that falls silent near its last row counts as complete.
        const bool endedBySilence = !judge.Digital() && (faulty.silence >= SilenceUntilTimeout(false) ||
                                                         judge.Happened({FaultKind::Delayed}));
        if (believable) {
            for (const auto& [row, texts] : rows) {
                const auto found = all.find(row);
                judge.Expect(found != all.end() && found->second == texts,
                             "row " + std::to_string(row) + " isn't the radio's memory");
            }
            // A radio that leaves out a memory, or ends its list early, has told all, for all that anyone can
            // know: the protocol has no count.
            if (status == TransferComplete && clean.status == TransferComplete &&
                !judge.Happened({FaultKind::EndRecord, FaultKind::LineBefore, FaultKind::Babble}) &&
                !endedBySilence && !LosesLineToNoise(judge) && !garbledTwice)
                for (const auto& [row, texts] : all)
                    judge.Expect(rows.contains(row),
                                 "a complete read, but memory " + std::to_string(row) + " hasn't come");
        }
    }
    // Another fault ends what a babbling radio sends. No text tells whether it belongs to the configuration.
    const bool babbledToTheEnd = judge.Happened({FaultKind::Babble}) && judge.Count() > 1;
    if (job.mode == ReadConfigMode && status == TransferComplete && clean.status == TransferComplete &&
        !faulty.forgedToProgram && !judge.Happened({FaultKind::LineBefore, FaultKind::EndRecord}) &&
        !garbledTwice && !babbledToTheEnd)
        judge.Expect(faulty.configLines == clean.configLines, "a complete read of another configuration");

    // Breaches of the protocol, as the radio counts them.
    const bool mayBreach =
        faulty.spoiltToRadio || faulty.spoiltToProgram ||
        judge.Happened({FaultKind::Restart, FaultKind::Twice, FaultKind::LineBefore, FaultKind::WrongChecksum,
                        FaultKind::WrongChecksumAlways, FaultKind::MissedSpeed, FaultKind::CutLine,
                        FaultKind::EndRecord, FaultKind::RefusalAlways, FaultKind::Babble}) ||
        // Cancelled while the radio changes its speed.
        (judge.Happened({FaultKind::Cancel}) && faulty.complaints.starts_with("hears garbage"));
    if (!mayBreach)
        judge.Expect(faulty.violations == 0, "the program broke the protocol: " + faulty.complaints);
    return judge.Broken();
}

} // namespace Campaign
