#include "system/mac_tools/disk_usage.hpp"

#include "system/process/shell.hpp"

#include <algorithm>
#include <charconv>

namespace kelmar::DiskUsage {

std::optional<std::int64_t> kibibytes(const std::string& path, std::chrono::milliseconds within) {
    // du exits with an error after any complaint, even if its total is valid.
    const std::optional<Shell::Result> result =
        Shell::runWithin(within, "/usr/bin/du", {"-sk", path});
    return result ? kibibytesIn(result->output) : std::nullopt;
}

std::optional<std::int64_t> kibibytesIn(std::string_view output) {
    constexpr std::string_view blank = " \t\n\v\f\r";
    output.remove_prefix(std::min(output.find_first_not_of(blank), output.size()));
    std::string_view field = output.substr(0, output.find_first_of(blank));
    if (field.starts_with('+') && !field.starts_with("+-")) {
        field.remove_prefix(1); // std::from_chars takes a minus sign only
    }
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
    const bool whole = error == std::errc{} && end == field.data() + field.size();
    return whole ? std::optional(value) : std::nullopt;
}

} // namespace kelmar::DiskUsage
