#pragma once

#include "system/process/held_process.hpp"

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// The processes whose executable lies inside one of `folders` (not one that is the folder itself),
/// except this process, in the system's order. Matches a folder both as written and with its
/// symlinks resolved (realpath(3)), since a process may have been started through either.
std::vector<pid_t> processesUnder(const std::vector<std::string>& folders);

/// Those of them whose effective user is the current user, each held. Each is checked again after
/// it is held, so that none can have become another process in between.
std::vector<HeldProcess> ownProcessesUnder(const std::vector<std::string>& folders);

} // namespace kelmar
