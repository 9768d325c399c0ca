#pragma once

#include <string>
#include <vector>

namespace kelmar::bench {

/// Starts a program the barest way there is, its output into the null device when `quiet`, waits
/// for it and returns its exit status; ends the run when it cannot be started.
int runChild(const std::vector<std::string>& command, bool quiet);

} // namespace kelmar::bench
