#pragma once

#include <string>
#include <vector>

namespace kelmar::bench {

/// What something is compared with and may cost at most.
struct Pair {
    std::string title;  ///< as the table has it
    std::string beside; ///< what it is measured beside
    double limit;       ///< the largest ratio of the two medians that is meant
};

/// The value below which `share` of `values` lie, the nearest one that there is; 0 without values.
double quantile(std::vector<double> values, double share);

/// The one in the middle, or the mean of the two there.
double median(std::vector<double> values);

/// The table, as Markdown: its head, and then a row for each pair, with both medians in `unit` and
/// their ratio.
void printTableHead();
void printRow(const Pair& pair, const std::vector<double>& ours, const std::vector<double>& beside,
              const char* unit);

} // namespace kelmar::bench
