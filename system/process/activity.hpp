#pragma once

#include <memory>
#include <string>

namespace kelmar {

/// Declares work that a person waits for. As long as the result lives, the system does not slow
/// this process down behind other windows, and does not sleep for lack of input (macOS:
/// NSProcessInfo; closing the lid still makes it sleep). `reason` appears in the system's own
/// lists. Empty on systems without such a declaration. May be called from any thread.
[[nodiscard]] std::shared_ptr<void> beginActivity(const std::string& reason);

} // namespace kelmar
