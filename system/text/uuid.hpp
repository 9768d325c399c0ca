#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// A new random UUID (version 4) in its canonical form of 36 characters, upper case, which nobody
/// can guess. Absent if the system returns no random numbers (errno says why).
std::optional<std::string> randomUuid();

/// Returns true if `text` is a UUID in that form, of any version.
bool isUuid(std::string_view text);

} // namespace kelmar
