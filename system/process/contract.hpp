#pragma once

#include <string_view>

namespace kelmar {

/// Ends the program because a promise between two of its parts was broken: a programming error,
/// never something that a person or a machine did. Writes one line to standard error, "Kelmar
/// Uninstaller: broken contract: " and `what`, and aborts. May be called from any thread.
[[noreturn]] void brokenContract(std::string_view what);

} // namespace kelmar
