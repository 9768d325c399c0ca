#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelmar {

/// The kibibytes that `output`, printed by `du -sk`, reports: its first field, when that is a whole
/// decimal number. Absent otherwise, as when du(1) printed only an error.
std::optional<std::int64_t> kibibytes(std::string_view output);

} // namespace kelmar
