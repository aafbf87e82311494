#include "bench/RatioReport.h"

#include <algorithm>
#include <cstdio>

namespace {

/// Keeps the smaller of two values; 0 stands for none.
void KeepSmaller(double& value, double other) {
    if (value == 0 || other < value)
        value = other;
}

} // namespace

void RatioReport::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        if (run.error_occurred) {
            std::printf("%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            m_failed = true;
            continue;
        }
        // "group/case/side", without what the library appends.
        const std::string& name = run.run_name.function_name;
        const size_t slash = name.rfind('/');
        Take(run, name.substr(0, slash), name.substr(slash + 1));
    }
}

void RatioReport::Take(const Run& run, const std::string& pairName, const std::string& side) {
    if (side == "rate") {
        if (!m_rates.contains(pairName))
            m_rateOrder.push_back(pairName);
        m_rates[pairName] = std::max(m_rates[pairName], run.counters.at("items_per_second").value);
        return;
    }
    if (side == "size") {
        KeepSmaller(m_sizes[pairName], run.counters.at("megabytes").value);
        return;
    }
    for (CounterTable& table : m_counterTables) {
        const auto counter = run.counters.find(table.counter);
        if (counter == run.counters.end() || !table.aims.contains(GroupOf(pairName)))
            continue;
        Pair& pair = table.pairs[pairName];
        KeepSmaller(side == "spinning" ? pair.floor : pair.program, counter->second.value);
    }
    if (side == "spinning")
        return;
    if (!m_pairs.contains(pairName))
        m_order.push_back(pairName);
    Pair& pair = m_pairs[pairName];
    KeepSmaller(side == "floor" ? pair.floor : pair.program,
                1000 * run.real_accumulated_time / static_cast<double>(run.iterations));
}

bool RatioReport::PrintGrowth() const {
    bool good = true, headed = false;
    for (const std::string& name : m_order) {
        const size_t slash = name.rfind('/');
        const std::string series = name.substr(0, slash + 1);
        const auto large = m_pairs.find(series + std::to_string(m_growth.to));
        if (name != series + std::to_string(m_growth.from) || large == m_pairs.end())
            continue;
        if (!headed)
            std::printf("\n%-32s %12s %12s %7s %6s\n", "growth with size", "program", "floor", "", "aim");
        headed = true;
        const Pair& small = m_pairs.at(name);
        const double program = small.program > 0 ? large->second.program / small.program : 0;
        const double floor = small.floor > 0 ? large->second.floor / small.floor : 0;
        const auto own = m_growthAims.find(GroupOf(name));
        const double aim = own == m_growthAims.end() ? m_growth.aim : own->second;
        const bool met = program > 0 && program <= aim;
        good = good && met;
        std::printf("%-32s %12.2f %12.2f %7s %6.2f%s\n",
                    (series + std::to_string(m_growth.from) + "-" + std::to_string(m_growth.to)).c_str(),
                    program, floor, "", aim, met ? "" : "  above");
    }
    return good;
}

void RatioReport::PrintRates() const {
    if (!m_rateOrder.empty())
        std::printf("\n%-32s %12s\n", "", "a second");
    for (const std::string& name : m_rateOrder)
        std::printf("%-32s %12.0f\n", name.c_str(), m_rates.at(name));
}

bool RatioReport::PrintSizes() const {
    bool good = true;
    if (!m_sizes.empty())
        std::printf("\n%-32s %12s %27s\n", "", "MB", "aim");
    for (const auto& [name, size] : m_sizes) {
        const auto aim = m_sizeAims.find(GroupOf(name));
        const bool met = aim != m_sizeAims.end() && size <= aim->second;
        good = good && met;
        std::printf("%-32s %12.2f %27.2f%s\n", name.c_str(), size, aim == m_sizeAims.end() ? 0 : aim->second,
                    met ? "" : "  above");
    }
    return good;
}

bool RatioReport::PrintCounters(const CounterTable& table) const {
    bool good = true;
    if (!table.pairs.empty())
        std::printf("\n%-32s %12s %12s %7s %6s\n", table.title.c_str(), "program", "spinning", "ratio",
                    "aim");
    for (const std::string& name : m_order) {
        const auto found = table.pairs.find(name);
        if (found == table.pairs.end())
            continue;
        const Pair& pair = found->second;
        const double aim = table.aims.at(GroupOf(name));
        const double ratio = pair.floor > 0 ? pair.program / pair.floor : 0;
        const double judged = table.isRatio ? ratio : pair.program;
        const bool met = judged > 0 && judged <= aim;
        good = good && met;
        std::printf("%-32s %12.1f %12.1f %7.3f %6.2f%s\n", name.c_str(), pair.program, pair.floor, ratio, aim,
                    met ? "" : "  above");
    }
    return good;
}

std::string RatioReport::GroupOf(const std::string& name) {
    return name.substr(0, name.find('/'));
}

bool RatioReport::Print() const {
    bool good = !m_failed;
    if (!m_order.empty())
        std::printf("%-32s %12s %12s %7s %6s\n", "", "program ms", "floor ms", "ratio", "aim");
    for (const std::string& name : m_order) {
        const Pair& pair = m_pairs.at(name);
        const std::string group = GroupOf(name);
        const double aim = m_aims.contains(group) ? m_aims.at(group) : 0;
        const double ratio = pair.floor > 0 ? pair.program / pair.floor : 0;
        const bool met = pair.program > 0 && pair.floor > 0 && ratio <= aim;
        good = good && met;
        std::printf("%-32s %12.2f %12.2f %7.3f %6.2f%s\n", name.c_str(), pair.program, pair.floor, ratio, aim,
                    met ? "" : "  above");
    }
    for (const CounterTable& table : m_counterTables)
        good = PrintCounters(table) && good;
    PrintRates();
    good = PrintSizes() && good;
    return PrintGrowth() && good;
}
