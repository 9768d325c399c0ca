#include "bench/pair_reporter.hpp"

#include <cstdio>

namespace kelmar::bench {

bool PairReporter::ReportContext(const Context& /*context*/) {
    return true;
}

void PairReporter::ReportRuns(const std::vector<Run>& runs) {
    constexpr double milli = 1000;
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration) {
            const std::string name = run.run_name.function_name;
            milliseconds_[name].push_back(run.real_accumulated_time /
                                          static_cast<double>(run.iterations) * milli);
            std::fputc('.', stderr);
        }
    }
}

void PairReporter::printTable() const {
    std::fputc('\n', stderr);
    printTableHead();
    for (const auto& [key, pair] : pairs_) {
        const auto ours = milliseconds_.find(key + "/ours");
        const auto beside = milliseconds_.find(key + "/beside");
        if (ours != milliseconds_.end() && beside != milliseconds_.end()) {
            printRow(pair, ours->second, beside->second, "ms");
        }
    }
}

} // namespace kelmar::bench
