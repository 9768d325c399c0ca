#pragma once

#include <string>
#include <vector>

namespace kelmar::test {

/// Runs a program with posix_spawn(3) and waits for it. Does nothing else, to add as little as
/// possible to measurements. If `quiet`, its output goes to the null device. Returns the status as
/// wait(2) has it. Throws std::system_error if the program can't be started.
int spawnAndWait(const std::vector<std::string>& command, bool quiet);

} // namespace kelmar::test
