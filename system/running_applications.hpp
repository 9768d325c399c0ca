#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// How an application is told from others. A system that keeps a list of running applications looks
/// them up by bundle identifier; one that doesn't goes by where their executables lie.
struct ApplicationIdentity {
    std::string bundleIdentifier;
    std::vector<std::string> bundles; ///< paths where the application's bundle may be
};

/// The processes of the applications running now that have this identity; none when there are none
/// or when the system does not say.
std::vector<pid_t> runningApplications(const ApplicationIdentity& identity);

} // namespace kelmar
