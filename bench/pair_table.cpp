#include "bench/pair_table.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace kelmar::bench {

double quantile(std::vector<double> values, double share) {
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    const double rank = std::ceil(share * static_cast<double>(values.size()));
    const auto index = static_cast<std::size_t>(std::max(rank, 1.0)) - 1;
    return values[std::min(index, values.size() - 1)];
}

double median(std::vector<double> values) {
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void printTableHead() {
    std::printf("| what | beside | median | median beside | runs | ratio | at most |\n");
    std::printf("|---|---|---|---|---|---|---|\n");
}

void printRow(const Pair& pair, const std::vector<double>& ours, const std::vector<double>& beside,
              const char* unit) {
    const double first = median(ours);
    const double second = median(beside);
    std::printf("| %s | %s | %.2f %s | %.2f %s | %zu | %.2f | %.1f |\n", pair.title.c_str(),
                pair.beside.c_str(), first, unit, second, unit, ours.size(), first / second,
                pair.limit);
}

} // namespace kelmar::bench
