#pragma once

#include "bench/pair_table.hpp"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kelmar::bench {

/// Collects the repetitions of benchmarks named KEY/ours and KEY/beside. At the end prints one row
/// for each pair: both medians and their ratio.
class PairReporter : public benchmark::BenchmarkReporter {
public:
    explicit PairReporter(std::map<std::string, Pair> pairs) : pairs_(std::move(pairs)) {}

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the table, as Markdown.
    void printTable() const;

private:
    std::map<std::string, Pair> pairs_;
    std::map<std::string, std::vector<double>> milliseconds_;
};

} // namespace kelmar::bench
