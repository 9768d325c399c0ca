#pragma once

#include "system/process/held_process.hpp"

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// The processes whose executable lies inside one of `folders` (not one that is the folder itself),
/// without this process, in the system's order. A folder is meant both as it is written and with
/// its links resolved (realpath(3)), since a process may have been started through either.
std::vector<pid_t> processesUnder(const std::vector<std::string>& folders);

/// Those of them that act as the current user, each held, and looked at once more since: none has
/// become another process in between.
std::vector<HeldProcess> ownProcessesUnder(const std::vector<std::string>& folders);

} // namespace kelmar
