#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Disk usage, through du(1).
namespace kelmar::DiskUsage {

/// Longer than du(1) takes for any folder on a disk that answers.
constexpr std::chrono::hours patience{2};

/// The kibibytes that `path` and everything beneath it take on disk. Absent if du(1) printed no
/// total, or none `within` that time. Runs /usr/bin/du and blocks until it has ended, for minutes
/// on a large folder. May be called from any thread.
std::optional<std::int64_t> kibibytes(const std::string& path,
                                      std::chrono::milliseconds within = patience);

/// The kibibytes that `output`, printed by `du -sk`, reports: its first field, when that is a whole
/// decimal number. Absent otherwise, as when du printed only an error.
std::optional<std::int64_t> kibibytesIn(std::string_view output);

} // namespace kelmar::DiskUsage
