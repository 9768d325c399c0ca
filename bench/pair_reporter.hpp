#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kelmar::bench {

/// What a benchmark is compared with and may cost at most.
struct Pair {
    std::string title;  ///< as the table has it
    std::string beside; ///< what it is measured beside
    double limit;       ///< the largest ratio of the two medians that is meant
};

/// Collects the repetitions of benchmarks named KEY/ours and KEY/beside and prints, at the end, one
/// row a pair: both medians and their ratio.
class PairReporter : public benchmark::BenchmarkReporter {
public:
    explicit PairReporter(std::map<std::string, Pair> pairs) : pairs_(std::move(pairs)) {}

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// The table, as Markdown.
    void printTable() const;

private:
    std::map<std::string, Pair> pairs_;
    std::map<std::string, std::vector<double>> seconds_;
};

} // namespace kelmar::bench
