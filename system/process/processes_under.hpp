#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// The processes whose executable lies inside one of `folders` (not one that is the folder itself),
/// without this process, in the system's order. A folder is meant both as it is written and with
/// its links resolved (realpath(3)), since a process may have been started through either.
std::vector<pid_t> processesUnder(const std::vector<std::string>& folders);

} // namespace kelmar
