#include "system/executables_under.hpp"
#include "system/running_applications.hpp"

namespace kelmar {

std::vector<pid_t> runningApplications(const ApplicationIdentity& identity) {
    return processesUnder(identity.bundles);
}

} // namespace kelmar
