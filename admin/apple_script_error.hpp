#pragma once

#include "admin/administrator_runner.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace kelmar {

/// What it means that an AppleScript which asks for an administrator ended with this error number
/// and message; absent where the error has none. A refused or dismissed prompt, or one that could
/// not be shown, is `cancelled`; everything else is `failed`, a script that ended with a status of
/// its own among it: its number is the status, its message what it wrote to standard error.
AdministratorError administratorError(std::optional<std::int64_t> number,
                                      const std::optional<std::string>& message);

} // namespace kelmar
