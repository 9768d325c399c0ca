#pragma once

#include "system/process/held_process.hpp"

#include <memory>
#include <string>
#include <vector>

namespace kelmar {

/// How an application is told from others. A system that keeps a list of running applications looks
/// them up by bundle identifier; one that doesn't goes by where their executables lie.
struct ApplicationIdentity {
    std::string bundleIdentifier;
    std::vector<std::string> bundles; ///< paths where the application's bundle may be
};

/// An application running now.
struct RunningApplication {
    HeldProcess process;
    std::shared_ptr<void> handle; ///< what the system knows it by, where a process is not enough

    /// Asks it to quit, the way its own menu would. Whether the system took the request: the
    /// application may still ask its user, take its time, or not quit at all.
    [[nodiscard]] bool terminate() const;

    /// Ends it without asking. Whether the system took the request.
    [[nodiscard]] bool forceTerminate() const;
};

/// The current user's applications running now that have this identity; none when there are none or
/// when the system does not say.
std::vector<RunningApplication> runningApplications(const ApplicationIdentity& identity);

} // namespace kelmar
