#pragma once

#include "admin/administrator_runner.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace kelmar {

/// Translates the error of an AppleScript that asks for an administrator. A prompt that was
/// refused, dismissed or could not be shown is `cancelled`; everything else is `failed`. If the
/// script itself exits with a nonzero status, `number` is that status and the message is what it
/// wrote to standard error. Either argument is absent if the error has none.
AdministratorError administratorError(std::optional<std::int64_t> number,
                                      const std::optional<std::string>& message);

} // namespace kelmar
