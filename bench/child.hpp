#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar::bench {

/// Starts a program the barest way there is, its output into the null device when `quiet`, and
/// returns its process identifier; ends the run when it cannot be started.
pid_t startChild(const std::vector<std::string>& command, bool quiet);

/// The same, and waits for it. Its exit status.
int runChild(const std::vector<std::string>& command, bool quiet);

} // namespace kelmar::bench
