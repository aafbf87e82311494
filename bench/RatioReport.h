// Ratios of the program's times to their floors, from one run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Collects runs whose names end in "/program" and "/floor" and prints a line for each pair: the fastest time
/// of both, their ratio and the aim set for the pair's group. The fastest of many short runs is the cost of
/// the work; any other load on the machine only adds to it.
/// Runs whose names end in "/rate" have no floor: for these it prints the records per second of the fastest
/// run. For runs whose names end in "/size" it prints the megabytes of the smallest. Pairs whose names differ
/// only in a number at the end, a size, also show how time grows with it.
/// Counters of a table are compared between the program's runs and those whose names end in "/spinning". Of
/// several runs, the smallest value of each counts.
class RatioReport : public benchmark::BenchmarkReporter {
public:
    /// Sets the highest acceptable ratio for pairs whose name begins with group.
    void SetAim(const std::string& group, double aim) { m_aims[group] = aim; }

    /// Sets the highest acceptable ratio of a pair's program time at size `to` to its time at size `from`.
    void SetGrowthAim(int from, int to, double aim) { m_growth = {from, to, aim}; }

    /// Sets a separate growth aim for pairs whose name begins with group.
    void SetGrowthAim(const std::string& group, double aim) { m_growthAims[group] = aim; }

    /// Sets the highest acceptable number of megabytes for sizes whose name begins with group.
    void SetSizeAim(const std::string& group, double aim) { m_sizeAims[group] = aim; }

    bool ReportContext(const Context&) override { return true; }
    /// Adds a table of a counter for pairs whose name begins with group.
    ///
    /// @param isRatio whether the aim is the highest acceptable ratio to spinning, or the highest acceptable
    ///                value of the program
    void AddCounterTable(const std::string& counter, const std::string& title, const std::string& group,
                         double aim, bool isRatio) {
        m_counterTables.push_back({counter, title, isRatio, {{group, aim}}, {}});
    }

    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the table. False if a ratio, growth or size is above its aim, a run failed or a pair is
    /// incomplete.
    bool Print() const;

private:
    struct Pair {
        double program = 0, floor = 0; ///< milliseconds, or values of a counter
    };
    struct CounterTable {
        std::string counter, title;
        bool isRatio = false;
        std::map<std::string, double> aims;
        std::map<std::string, Pair> pairs;
    };
    struct GrowthAim {
        int from = 0, to = 0;
        double aim = 0;
    };
    bool PrintGrowth() const;
    void PrintRates() const;
    bool PrintSizes() const;
    bool PrintCounters(const CounterTable& table) const;
    static std::string GroupOf(const std::string& name);
    void Take(const Run& run, const std::string& pairName, const std::string& side);

    GrowthAim m_growth;
    std::map<std::string, double> m_aims, m_growthAims, m_sizeAims;
    std::vector<std::string> m_order;
    std::map<std::string, Pair> m_pairs;
    std::vector<std::string> m_rateOrder;
    std::map<std::string, double> m_rates; ///< records per second
    std::map<std::string, double> m_sizes; ///< megabytes
    std::vector<CounterTable> m_counterTables;
    bool m_failed = false;
};
