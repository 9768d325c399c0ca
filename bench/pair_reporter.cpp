#include "bench/pair_reporter.hpp"

#include <algorithm>
#include <cstdio>

namespace kelmar::bench {

namespace {

double median(std::vector<double> values) {
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace

bool PairReporter::ReportContext(const Context& /*context*/) {
    return true;
}

void PairReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration) {
            const std::string name = run.run_name.function_name;
            seconds_[name].push_back(run.real_accumulated_time /
                                     static_cast<double>(run.iterations));
            std::fputc('.', stderr);
        }
    }
}

void PairReporter::printTable() const {
    constexpr double milli = 1000;
    std::fputc('\n', stderr);
    std::printf("| what | beside | median | median beside | runs | ratio | at most |\n");
    std::printf("|---|---|---|---|---|---|---|\n");
    for (const auto& [key, pair] : pairs_) {
        const auto ours = seconds_.find(key + "/ours");
        const auto beside = seconds_.find(key + "/beside");
        if (ours == seconds_.end() || beside == seconds_.end()) {
            continue;
        }
        const double first = median(ours->second);
        const double second = median(beside->second);
        std::printf("| %s | %s | %.2f ms | %.2f ms | %zu | %.2f | %.1f |\n", pair.title.c_str(),
                    pair.beside.c_str(), first * milli, second * milli, ours->second.size(),
                    first / second, pair.limit);
    }
}

} // namespace kelmar::bench
