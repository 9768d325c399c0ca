#pragma once

#include <string>
#include <vector>

namespace kelmar::bench {

/// What to compare with, and the highest ratio allowed.
struct Pair {
    std::string title;  ///< the row's title in the table
    std::string beside; ///< what it is compared with
    double limit;       ///< the highest ratio of the two medians that we allow
};

/// The value below which `share` of `values` lie: the nearest one in `values`; 0 without values.
double quantile(std::vector<double> values, double share);

/// The middle value, or the mean of the two in the middle.
double median(std::vector<double> values);

/// Prints the table as Markdown: its head, then a row for each pair, with both medians in `unit`
/// and their ratio.
void printTableHead();
void printRow(const Pair& pair, const std::vector<double>& ours, const std::vector<double>& beside,
              const char* unit);

} // namespace kelmar::bench
