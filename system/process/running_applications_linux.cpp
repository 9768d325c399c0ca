#include "system/process/processes.hpp"
#include "system/process/processes_under.hpp"
#include "system/process/running_applications.hpp"

#include <csignal>

#include <unistd.h>

namespace kelmar {

bool RunningApplication::terminate() const {
    // The user's own way to end a program, which it can catch to put its things in order; SIGTERM,
    // the system's, is the next step and not this one.
    return ::kill(process, SIGINT) == 0;
}

bool RunningApplication::forceTerminate() const {
    return ::kill(process, SIGKILL) == 0;
}

std::vector<RunningApplication> runningApplications(const ApplicationIdentity& identity) {
    std::vector<RunningApplication> running;
    for (const pid_t process : processesUnder(identity.bundles)) {
        if (processOwner(process) == ::getuid()) {
            running.push_back({process, nullptr});
        }
    }
    return running;
}

} // namespace kelmar
