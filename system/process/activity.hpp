#pragma once

#include <memory>
#include <string>

namespace kelmar {

/// Declares work that a person waits for: as long as the result lives, the system does not slow
/// this process down for being behind other windows, and does not fall asleep because nobody
/// touches it (macOS: NSProcessInfo; closing a lid still puts it to sleep). `reason` is for the
/// system's own lists. Where there is nothing to declare the result is empty. From any thread.
[[nodiscard]] std::shared_ptr<void> beginActivity(const std::string& reason);

} // namespace kelmar
