#pragma once

#include <string_view>

namespace kelmar {

/// Aborts the program because one of its parts broke a promise to another: a programming error,
/// never an error of a person or the machine. First writes one line to standard error, "Kelmar
/// Uninstaller: broken contract: " and `what`. May be called from any thread.
[[noreturn]] void brokenContract(std::string_view what);

} // namespace kelmar
