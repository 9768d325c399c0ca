#pragma once

#include <string>
#include <vector>

namespace kelmar::test {

/// Runs a program with posix_spawn(3) and waits for it. Nothing else is done, so that measurements
/// contain as little as possible of what starts the program. With `quiet`, its output goes to the
/// null device. Returns the status as wait(2) has it. Throws std::system_error if the program can't
/// be started.
int spawnAndWait(const std::vector<std::string>& command, bool quiet);

} // namespace kelmar::test
