// Results of one run as ratios of the program to its floor.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Collects runs whose names end in "/program" and "/floor" and prints a line for each pair: the
/// fastest time of both, their ratio, and the aim that was set for the pair's group. The fastest of
/// many short runs is what the work costs; anything else on the machine only adds to it.
/// Runs whose names end in "/rate" have no floor: of them it prints how many records were done a second,
/// again the fastest run's. Of runs whose names end in "/size" it prints the megabytes of the smallest.
/// Pairs whose names differ only in a number at the end, a size, also show how time grows with it.
class RatioReport : public benchmark::BenchmarkReporter {
public:
    /// The highest ratio aimed at for pairs whose name begins with group.
    void SetAim(const std::string& group, double aim) { m_aims[group] = aim; }

    /// The highest ratio aimed at between a pair's program time at size to and that at size from.
    void SetGrowthAim(int from, int to, double aim) { m_growth = {from, to, aim}; }

    /// Another one for pairs whose name begins with group.
    void SetGrowthAim(const std::string& group, double aim) { m_growthAims[group] = aim; }

    /// The most megabytes aimed at for sizes whose name begins with group.
    void SetSizeAim(const std::string& group, double aim) { m_sizeAims[group] = aim; }

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the table. False when a ratio or growth is above its aim or a pair is not whole.
    bool Print() const;

private:
    struct Pair {
        double program = 0, floor = 0; ///< milliseconds
    };
    struct GrowthAim {
        int from = 0, to = 0;
        double aim = 0;
    };
    bool PrintGrowth() const;
    void PrintRates() const;
    bool PrintSizes() const;

    GrowthAim m_growth;
    std::map<std::string, double> m_aims, m_growthAims, m_sizeAims;
    std::vector<std::string> m_order;
    std::map<std::string, Pair> m_pairs;
    std::vector<std::string> m_rateOrder;
    std::map<std::string, double> m_rates; ///< a second
    std::map<std::string, double> m_sizes; ///< megabytes
    bool m_failed = false;
};
