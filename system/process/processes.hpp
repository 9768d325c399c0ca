#pragma once

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// The identifiers of all processes that the system lists, in its own order. A process may have
/// ended by the time the caller looks at it.
std::vector<pid_t> processIdentifiers();

/// The path of the executable that `process` runs. Absent when the process has gone, belongs to
/// somebody whose processes are not shown to us, or runs none (a kernel thread).
std::optional<std::string> executablePath(pid_t process);

/// The user that `process` acts as. Absent when it has gone or the system does not say.
std::optional<uid_t> processOwner(pid_t process);

} // namespace kelmar
