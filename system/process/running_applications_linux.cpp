#include "system/process/processes_under.hpp"
#include "system/process/running_applications.hpp"

#include <csignal>

namespace kelmar {

bool RunningApplication::terminate() const {
    // The user's own way to end a program, which it can catch to put its things in order; SIGTERM,
    // the system's, is the next step and not this one.
    return process.signal(SIGINT);
}

bool RunningApplication::forceTerminate() const {
    return process.signal(SIGKILL);
}

std::vector<RunningApplication> runningApplications(const ApplicationIdentity& identity) {
    std::vector<RunningApplication> running;
    for (const HeldProcess& process : ownProcessesUnder(identity.bundles)) {
        running.push_back({process, nullptr});
    }
    return running;
}

} // namespace kelmar
