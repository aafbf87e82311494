// Results of one run as ratios of the program to its floor.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Collects runs whose names end in "/program" and "/floor" and prints a line for each pair: the
/// fastest time of both, their ratio, and the aim that was set for the pair's group. The fastest of
/// many short runs is what the work costs; anything else on the machine only adds to it.
class RatioReport : public benchmark::BenchmarkReporter {
public:
    /// The highest ratio aimed at for pairs whose name begins with group.
    void SetAim(const std::string& group, double aim) { m_aims[group] = aim; }

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the table. False when a ratio is above its aim or a pair is not whole.
    bool Print() const;

private:
    struct Pair {
        double program = 0, floor = 0; ///< milliseconds
    };
    std::map<std::string, double> m_aims;
    std::vector<std::string> m_order;
    std::map<std::string, Pair> m_pairs;
    bool m_failed = false;
};
