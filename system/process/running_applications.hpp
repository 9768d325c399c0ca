#pragma once

#include "system/process/held_process.hpp"

#include <memory>
#include <string>
#include <vector>

namespace kelmar {

/// How to recognise an application. A system with a list of running applications looks it up by
/// bundle identifier; any other goes by where executables lie.
struct ApplicationIdentity {
    std::string bundleIdentifier;
    std::vector<std::string> bundles; ///< paths where the application's bundle may be
};

/// An application running now.
struct RunningApplication {
    HeldProcess process;
    std::shared_ptr<void> handle; ///< the system's handle, if a process identifier is not enough

    /// Asks it to quit, as its own menu would. Returns true if the system accepted the request: the
    /// application may still ask its user, take its time, or not quit at all.
    [[nodiscard]] bool terminate() const;

    /// Ends it without asking. Returns true if the system accepted the request.
    [[nodiscard]] bool forceTerminate() const;
};

/// The current user's running applications with this identity; empty if there are none or the
/// system does not say.
std::vector<RunningApplication> runningApplications(const ApplicationIdentity& identity);

} // namespace kelmar
