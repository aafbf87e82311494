// What must hold after a transfer without faults: what the user asked for has happened, to the letter.
#include "campaign/Checks.h"
#include "campaign/Judge.h"
#include "campaign/RecordRules.h"
#include "campaign/WritePlan.h"
#include "catalogue/RadioTables.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace Campaign {

namespace {

std::string Joined(const std::set<int>& numbers) {
    std::string text;
    for (const int number : numbers)
        text += (text.empty() ? "" : ", ") + std::to_string(number);
    return text.empty() ? "none" : text;
}

bool HasBox(const Outcome& outcome, std::string_view start) {
    return std::any_of(outcome.boxes.begin(), outcome.boxes.end(),
                       [start](const std::string& text) { return text.starts_with(start); });
}

/// The judgement of one transfer without faults.
class CleanChecks {
public:
    CleanChecks(const Scenario& scenario, const Job& job, const World& before, const Outcome& clean)
        : m_scenario(scenario), m_job(job), m_before(before), m_clean(clean),
          m_judge(scenario, job, before, clean), m_formats{scenario, before.program.rows.at(0)},
          m_plan(job.mode == WriteChannelsMode ? PlanOf(scenario, job, before) : WritePlan{}) {}

    std::vector<std::string> Broken() {
        m_judge.CheckEnd();
        m_judge.CheckTexts();
        m_judge.CheckZones();
        m_judge.CheckPauses();
        // An analog radio doesn't count breaches, it only complains.
        m_judge.Expect(m_clean.violations == 0 && m_clean.complaints.empty(),
                       "the program broke the protocol: " + m_clean.complaints);
        const TransferStatus status = ExpectedStatus();
        m_judge.Expect(m_clean.status == status, "without faults the status is " +
                                                     std::to_string(m_clean.status) + " and not " +
                                                     std::to_string(status));
        CheckBoxes();
        if (m_judge.Digital() && status != TransferNoDataSelected)
            CheckLines();
        if (m_job.mode == WriteChannelsMode)
            CheckWrite();
        else
            CheckMemories(m_before.radio);
        if (m_job.mode == ReadChannelsMode)
            CheckRead();
        return m_judge.Broken();
    }

private:
    bool Writes() const { return m_job.mode == WriteChannelsMode; }
    bool RefusesModes() const { return Writes() && m_plan.asksModes && !m_job.acceptsModes; }
    bool RefusesPurge() const {
        return Writes() && !RefusesModes() && m_plan.asksPurge && !m_job.acceptsPurge;
    }
    bool NeedsNewFirmware() const {
        const bool config = m_job.mode == ReadConfigMode || m_job.mode == WriteConfigMode;
        if (config)
            return m_scenario.target->protocol < 2 ||
                   m_scenario.radio.digitalHabits.firmware.starts_with("01");
        return false;
    }
    /// Rows that a write sends and that need fields of the new layout.
    bool MayNeedNewRecords() const { return Writes() && !m_formats.IsSecondLayout(); }

    TransferStatus ExpectedStatus() const {
        if (!m_judge.Digital())
            return m_job.mode == ReadChannelsMode && !m_scenario.radio.analogHabits.endLine &&
                           LastOfList() < m_formats.Reach() - 1
                       ? TransferTimeout
                       : TransferComplete;
        if (Writes() && !m_plan.hasData)
            return TransferNoDataSelected;
        if (RefusesModes())
            return TransferComplete;
        if (NeedsNewFirmware())
            return TransferInvalidTransmitData;
        // A zone, a primary or a shadow that the old records can't name.
        if (MayNeedNewRecords() && m_clean.status == TransferInvalidTransmitData && HasNewNumbers())
            return TransferInvalidTransmitData;
        return RefusesPurge() ? TransferCancelled : TransferComplete;
    }

    bool HasNewNumbers() const {
        return std::any_of(m_before.program.rows.begin(), m_before.program.rows.end(), [](const auto& row) {
            const RowTexts& texts = row.second;
            return std::atoi(texts[PRIM].c_str()) > 230 || std::atoi(texts[ZONE].c_str()) > 15 ||
                   std::atoi(texts[SHD0].c_str()) > 230 || std::atoi(texts[SHD1].c_str()) > 230 ||
                   std::atoi(texts[SHD2].c_str()) > 230;
        });
    }

    /// The highest memory that an analog radio sends.
    int LastOfList() const {
        const int reach = Simulator::ShortOpeningReach(*m_scenario.radio.analogModel);
        if (m_scenario.radio.analogHabits.allRows)
            return reach;
        int last = 1;
        for (const auto& [number, memory] : m_before.radio.analog)
            if (number <= reach)
                last = number;
        return last;
    }

    void CheckBoxes() {
        m_judge.Expect(HasBox(m_clean, "The following operating modes") ==
                           (Writes() && m_plan.hasData && m_plan.asksModes),
                       "the question of operating modes");
        if (Writes() && m_clean.status != TransferInvalidTransmitData)
            m_judge.Expect(HasBox(m_clean, "This radio") ==
                               (m_plan.hasData && m_plan.asksPurge && !RefusesModes()),
                           "the question whether to purge the radio");
        if (m_judge.Digital())
            return;
        const Simulator::StartKey key = m_scenario.radio.analogModel->key;
        const char* const name = key == Simulator::StartKey::Home ? "HOME" : "ENTER";
        const bool asks = key != Simulator::StartKey::None && m_job.mode == ReadChannelsMode;
        m_judge.Expect(m_clean.boxes.size() == (asks && m_clean.status == TransferTimeout   ? 2U
                                                : asks || m_clean.status == TransferTimeout ? 1U
                                                                                            : 0U) &&
                           HasBox(m_clean, "Close this dialog, then press " + std::string(name)) == asks,
                       "the question for the key of the radio");
    }

    /// Beginnings of the lines that the program sends in this transfer.
    std::vector<std::string> ExpectedLines() const {
        const int protocol = m_scenario.target->protocol;
        constexpr const char* ack = "T204000000";
        std::vector<std::string> lines;
        for (int offered = 0; offered <= protocol; ++offered)
            lines.push_back("T00700002" + std::to_string(offered) + "030000");
        if (protocol == 2)
            lines.push_back("T2060000320480");
        if (protocol > 0)
            lines.push_back("T204000033");
        const bool readsOther = m_job.mode == ReadChannelsMode || m_job.mode == ReadInformationMode ||
                                m_job.mode == ReadDebugLogMode;
        if (protocol == 2 && readsOther) {
            lines.push_back("T204000031");
            // The query brings the serial number, and the last acknowledgement the end.
            lines.insert(lines.end(), m_before.radio.digital.hardware.size() + 1, ack);
        }
        if (m_job.mode == ReadInformationMode || RefusesModes()) {
            lines.push_back("T9030000");
            return lines;
        }
        lines.push_back("T204000022");
        if (m_clean.status == TransferInvalidTransmitData)
            return lines;
        lines.push_back(Writes() ? "T204000020" : "T20B000021");
        if (RefusesPurge()) {
            lines.push_back("T9030000");
            return lines;
        }
        switch (m_job.mode) {
        case WriteChannelsMode:
            lines.push_back("T204000025");
            lines.insert(lines.end(), m_plan.data.begin(), m_plan.data.end());
            lines.push_back("T9030000");
            break;
        case ReadChannelsMode: {
            lines.push_back("T204000024");
            const auto& memories = m_before.radio.digital.memories;
            const auto count = std::count_if(memories.begin(), memories.end(),
                                             [&](const auto& each) { return m_formats.Travels(each.first); });
            lines.insert(lines.end(), static_cast<size_t>(count) + 1, ack);
            break;
        }
        case ReadConfigMode:
            lines.push_back("T204000034");
            lines.insert(lines.end(), m_before.radio.digital.config.size() + 1, ack);
            break;
        case WriteConfigMode:
            lines.push_back("T204000035");
            lines.insert(lines.end(), Simulator::DefaultConfig().size(), "T1");
            lines.push_back("T9030000");
            break;
        default:
            lines.push_back("T204000030");
            lines.insert(lines.end(), m_before.radio.digital.log.size() + 1, ack);
        }
        return lines;
    }

    void CheckLines() {
        const std::vector<std::string> lines = ExpectedLines();
        for (size_t i = 0; i < std::max(lines.size(), m_clean.sent.size()); ++i) {
            const std::string expected = i < lines.size() ? lines[i] : "";
            const std::string sent = i < m_clean.sent.size() ? m_clean.sent[i] : "";
            if (expected.empty() || !sent.starts_with(expected)) {
                m_judge.Expect(false, "line " + std::to_string(i + 1) + " is \"" + sent + "\" and not \"" +
                                          expected + "\"");
                return;
            }
        }
    }

    /// The radio holds these memories and no others.
    void CheckMemories(const RadioState& expected) {
        const auto compare = [&](const auto& now, const auto& wanted) {
            for (const auto& [number, memory] : wanted) {
                const std::string name = "memory " + std::to_string(number);
                const auto found = now.find(number);
                m_judge.Expect(found != now.end(), name + " isn't in the radio");
                if (found != now.end() && !(found->second == memory))
                    m_judge.Expect(false, name + " of the radio: " + DifferenceOf(found->second, memory));
            }
            for (const auto& [number, memory] : now)
                m_judge.Expect(wanted.contains(number),
                               "memory " + std::to_string(number) + " is in the radio");
        };
        compare(m_clean.world.radio.digital.memories, expected.digital.memories);
        compare(m_clean.world.radio.analog, expected.analog);
    }

    void CheckWrite() {
        m_judge.CheckPageOfWrite();
        if (m_clean.status != TransferComplete || RefusesModes())
            return CheckMemories(m_before.radio);
        CheckMemories(m_plan.radio);
        m_judge.Expect(m_clean.rowsSent == m_plan.reached,
                       "these rows count as sent: " + Joined(m_clean.rowsSent) +
                           ", but these were: " + Joined(m_plan.reached));
        CheckGauge(m_judge.Digital()     ? static_cast<int>(m_plan.sent.size())
                   : m_plan.sent.empty() ? 0
                                         : m_plan.sent.back());
        if (!m_judge.Digital())
            return;
        const ProgramState& program = m_clean.world.program;
        // What a read that broke off has left unknown becomes known only by a purge.
        const bool isUnknown = m_before.program.readBrokeOff && !m_plan.purges;
        m_judge.Expect(program.stamp.utf8_string() == m_clean.world.radio.digitalHabits.stamp &&
                           program.heldStamp == program.stamp && program.readBrokeOff == isUnknown,
                       "the program doesn't know the radio after a complete write");
        CheckHeldRows(m_plan.heldRows);
        for (const int row : m_plan.reached)
            m_judge.Expect(HasFlag(row, InRadioFlag) == !m_plan.erased.contains(row),
                           "the mark that the radio holds row " + std::to_string(row));
    }

    bool HasFlag(int row, int flag) const {
        const auto found = m_clean.world.program.rows.find(row);
        return found != m_clean.world.program.rows.end() &&
               (std::strtol(found->second[TFLG].c_str(), nullptr, 16) & flag);
    }

    void CheckHeldRows(const std::set<int>& expected) {
        std::set<int> held;
        for (const auto& [row, isHeld] : m_clean.world.program.heldRows)
            held.insert(row);
        m_judge.Expect(held == expected, "the program takes the radio to hold these rows: " + Joined(held) +
                                             ", but it holds these: " + Joined(expected));
    }

    /// A value past the range isn't shown.
    void CheckGauge(int expected) {
        if (expected <= m_clean.range)
            m_judge.Expect(m_clean.gauge == expected, "the gauge shows " + std::to_string(m_clean.gauge) +
                                                          " and not " + std::to_string(expected));
    }

    /// A memory whose zone has its rows on the page already gets the next zone with room.
    std::string DifferenceFrom(const Simulator::DigitalMemory& memory, RowTexts texts) const {
        constexpr int slots = 16;
        const std::string zone = ZoneCellOf(m_formats, memory);
        const auto isOfTheZone = [&](const auto& row) { return row.first && row.second[ZONE] == zone; };
        if (slots <= std::ranges::count_if(m_clean.world.program.rows, isOfTheZone))
            texts[ZONE] = zone;
        return Campaign::DifferenceFrom(m_formats, memory, texts);
    }
    std::string DifferenceFrom(const Simulator::AnalogMemory& memory, const RowTexts& texts) const {
        return Campaign::DifferenceFrom(m_formats, memory, texts);
    }

    void CheckRead() {
        const auto& rows = m_clean.world.program.rows;
        std::set<int> expected{0};
        const auto compare = [&](int number, const auto& memory) {
            expected.insert(number);
            const auto found = rows.find(number);
            const std::string difference =
                found == rows.end() ? "is blank" : DifferenceFrom(memory, found->second);
            m_judge.Expect(difference.empty(),
                           "row " + std::to_string(number) + " isn't the radio's memory: " + difference);
        };
        if (m_judge.Digital()) {
            for (const auto& [number, memory] : m_before.radio.digital.memories)
                if (m_formats.Travels(number))
                    compare(number, memory);
        } else {
            const Simulator::AnalogModel& model = *m_scenario.radio.analogModel;
            for (int number = 1; number <= Simulator::ShortOpeningReach(model); ++number) {
                const auto found = m_before.radio.analog.find(number);
                if (found != m_before.radio.analog.end())
                    compare(number, found->second);
                else if (number == 1 || m_scenario.radio.analogHabits.allRows)
                    compare(number, Simulator::EmptyMemory(model, number));
            }
        }
        for (const auto& [row, texts] : rows)
            m_judge.Expect(expected.contains(row), "row " + std::to_string(row) + " came from nowhere");
        if (!m_judge.Digital())
            return CheckGauge(LastOfList());
        if (m_clean.status != TransferComplete)
            return;
        expected.erase(0);
        const ProgramState& program = m_clean.world.program;
        m_judge.Expect(program.stamp.utf8_string() == m_clean.world.radio.digitalHabits.stamp &&
                           program.heldStamp == program.stamp && !program.readBrokeOff,
                       "the program doesn't know the radio after a complete read");
        CheckHeldRows(expected);
    }

    const Scenario& m_scenario;
    const Job& m_job;
    const World& m_before;
    const Outcome& m_clean;
    Judge m_judge;
    Formats m_formats;
    WritePlan m_plan;
};

} // namespace

std::vector<std::string> BrokenConditions(const Scenario& scenario, const Job& job, const World& before,
                                          const Outcome& clean) {
    return CleanChecks(scenario, job, before, clean).Broken();
}

} // namespace Campaign
