#pragma once

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// The identifiers of all processes that the system lists, in its own order. A process may have
/// ended before the caller examines it.
std::vector<pid_t> processIdentifiers();

/// The path of the executable that `process` runs. Absent if the process has gone, belongs to a
/// user whose processes are hidden from us, or has no executable (a kernel thread).
std::optional<std::string> executablePath(pid_t process);

/// The effective user of `process`. Absent if it has gone or the system does not say.
std::optional<uid_t> processOwner(pid_t process);

} // namespace kelmar
