#include "discovery/disk_usage.hpp"

#include "discovery/scanner.hpp"
#include "system/contract.hpp"
#include "system/shell.hpp"

#include <algorithm>
#include <charconv>
#include <limits>

namespace kelmar {

std::optional<std::int64_t> kibibytes(std::string_view output) {
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

std::optional<std::int64_t> Scanner::size(const std::string& path) {
    constexpr std::int64_t bytesPerKibibyte = 1024;
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / bytesPerKibibyte;
    // The exit status is of no interest: a total counts also when du complained about something
    // else.
    const std::optional<std::int64_t> total =
        kibibytes(Shell::run("/usr/bin/du", {"-sk", path}).output);
    if (!total) {
        return std::nullopt;
    }
    if (*total > limit || *total < -limit - 1) {
        brokenContract("du reported a size that no disk has");
    }
    return *total * bytesPerKibibyte;
}

} // namespace kelmar
