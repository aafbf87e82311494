#include "campaign/WritePlan.h"

#include "campaign/RecordRules.h"
#include "catalogue/RadioTables.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>

using namespace RadioCatalogue;

namespace Campaign {

namespace {

int Number(const std::string& text, int base) {
    return static_cast<int>(std::strtol(text.c_str(), nullptr, base));
}

uint32_t ModeBit(const std::string& mode) {
    return mode == "w" ? 0x40 : mode == "n" ? 0x20 : mode == "D" ? 0x10 : 0;
}

/// Plans a write to a digital radio.
class Planner {
public:
    Planner(const Scenario& scenario, const Job& job, const World& before)
        : m_job(job), m_before(before),
          m_rows(before.program.rows), m_formats{scenario, before.program.rows.at(0)},
          m_last(static_cast<int>(RadioRows[scenario.target->radio][0])) {}

    WritePlan Plan() {
        Evaluate();
        const std::string stamp = m_before.program.stamp.utf8_string();
        m_otherRadio = stamp.empty() || stamp != m_before.radio.digitalHabits.stamp;
        m_plan.purges = m_otherRadio || m_hasShadows;
        m_plan.asksPurge = MayCostMemories();
        m_plan.radio = m_before.radio;
        if (m_plan.purges) {
            m_plan.data.push_back("T204000011");
            m_plan.radio.digital.memories.clear();
        } else if (m_before.program.heldStamp == m_before.program.stamp) {
            for (const auto& [row, held] : m_before.program.heldRows)
                m_plan.heldRows.insert(row);
        }
        for (const bool shadows : {false, true})
            for (const auto& [row, texts] : m_rows)
                Send(row, texts, shadows);
        return m_plan;
    }

private:
    bool IsSelected(int row) const {
        const auto found = m_job.selected.find(row);
        return found != m_job.selected.end() && found->second;
    }
    static int FlagsOf(const RowTexts& texts) { return Number(texts[TFLG], 16); }
    static bool IsShadowRow(const RowTexts& texts) { return Number(texts[MFLG], 16) & ShadowIndexMask; }

    /// Finds the rows that go along as family of a selected shadow. A row that is marked before its turn
    /// counts like a selected one.
    void Evaluate() {
        for (const auto& [row, texts] : m_rows) {
            const bool goes = IsSelected(row) || m_family.contains(row);
            if (!(FlagsOf(texts) & DEF) || !(goes || (FlagsOf(texts) & EraseFlag)))
                continue;
            m_plan.hasData = true;
            m_plan.asksModes = m_plan.asksModes || (ModeBit(texts[MODE]) & ~m_before.program.modes);
            if (!IsShadowRow(texts))
                continue;
            m_hasShadows = true;
            const int primary =
                texts[SHAD].starts_with("S-") ? Number(texts[SHAD].substr(2), 10) : Number(texts[PRIM], 10);
            const auto found = m_rows.find(primary);
            if (primary < 1 || primary > m_last)
                continue;
            m_family.insert(primary);
            for (int column = SHD0; found != m_rows.end() && column <= SHD6; ++column)
                if (const int other = Number(found->second[static_cast<size_t>(column)], 10);
                    other >= 1 && other <= m_last)
                    m_family.insert(other);
        }
    }

    bool MayCostMemories() const {
        if (m_otherRadio)
            return std::any_of(m_rows.begin(), m_rows.end(),
                               [&](const auto& row) { return row.first > 0 && !IsSelected(row.first); });
        if (!m_plan.purges || m_before.program.heldStamp != m_before.program.stamp)
            return false;
        const auto survives = [&](int row) {
            const auto found = m_rows.find(row);
            const int flags = found == m_rows.end() ? 0 : FlagsOf(found->second);
            return (flags & EraseFlag) ||
                   ((flags & DEF) && (IsSelected(row) || m_family.contains(row) || (flags & InRadioFlag)));
        };
        return m_before.program.readBrokeOff ||
               !std::all_of(m_before.program.heldRows.begin(), m_before.program.heldRows.end(),
                            [&](const auto& row) { return survives(row.first); });
    }

    void Send(int row, const RowTexts& texts, bool shadows) {
        const int flags = FlagsOf(texts);
        if (!(flags & DEF) || IsShadowRow(texts) != shadows)
            return;
        char number[8];
        std::snprintf(number, sizeof number, "%04X", static_cast<unsigned>(row));
        if (flags & EraseFlag) {
            const int last = m_formats.IsSecondLayout() ? NP25Memories : RP25Memories;
            if (!IsSelected(row) || m_otherRadio || !(flags & InRadioFlag) || row < 2 || row > last)
                return;
            m_plan.data.push_back(std::string("T204") + number + "10");
            m_plan.erased.insert(row);
            m_plan.radio.digital.memories.erase(row);
            m_plan.heldRows.erase(row);
            m_plan.reached.insert(row);
            return;
        }
        const bool goesAlong = m_plan.purges && ((flags & InRadioFlag) || m_family.contains(row));
        if (!(IsSelected(row) || goesAlong) || !m_formats.Travels(row))
            return;
        m_plan.data.push_back("T143");
        m_plan.sent.push_back(row);
        m_plan.radio.digital.memories[row] = DigitalMemoryOf(m_formats, row, texts);
        if (row == 0)
            return;
        m_plan.heldRows.insert(row);
        m_plan.reached.insert(row);
    }

    const Job& m_job;
    const World& m_before;
    const std::map<int, RowTexts>& m_rows;
    Formats m_formats;
    int m_last;
    bool m_otherRadio = false, m_hasShadows = false;
    std::set<int> m_family; ///< rows that go along with selected shadows
    WritePlan m_plan;
};

WritePlan AnalogPlan(const Scenario& scenario, const Job& job, const World& before) {
    WritePlan plan;
    plan.hasData = true;
    plan.radio = before.radio;
    const Formats formats{scenario, before.program.rows.at(0)};
    for (const auto& [row, texts] : before.program.rows) {
        const auto found = job.selected.find(row);
        if (row == 0 || found == job.selected.end() || !found->second || !formats.Travels(row))
            continue;
        plan.sent.push_back(row);
        plan.reached.insert(row);
        plan.radio.analog[row] = AnalogMemoryOf(row, texts);
    }
    return plan;
}

} // namespace

WritePlan PlanOf(const Scenario& scenario, const Job& job, const World& before) {
    return scenario.radio.IsDigital() ? Planner(scenario, job, before).Plan()
                                      : AnalogPlan(scenario, job, before);
}

} // namespace Campaign
