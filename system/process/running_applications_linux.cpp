#include "system/process/processes_under.hpp"
#include "system/process/running_applications.hpp"

#include <csignal>

namespace kelmar {

bool RunningApplication::terminate() const {
    // Ctrl-C's signal, which a program can catch to clean up. SIGTERM is the caller's next step.
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
