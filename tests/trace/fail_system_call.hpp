#pragma once

#include <sys/types.h>

namespace kelmar::test {

/// Whether this architecture's system calls can be made to fail here.
bool canFailSystemCalls();

/// Lets the system call at whose entry the traced `thread` stands fail with `error`, an errno
/// value, without being executed. Throws std::system_error.
void failSystemCall(pid_t thread, int error);

} // namespace kelmar::test
