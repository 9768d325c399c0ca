#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// A fresh random UUID (version 4) in its canonical form of 36 characters, upper case, that nobody
/// can guess. Absent when the system gives no random numbers (errno says why).
std::optional<std::string> randomUuid();

/// Whether `text` is a UUID in that form, of whatever version.
bool isUuid(std::string_view text);

} // namespace kelmar
