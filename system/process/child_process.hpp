#pragma once

#include "system/files/file_descriptor.hpp"

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// A child just started, or the reason why it was not.
struct StartedChild {
    pid_t process = -1;
    FileDescriptor output; ///< read end of the pipe that the child's two output streams share
    int error = 0; ///< 0 when the child runs, otherwise the errno value of the step that failed
};

/// Starts `executable` with `arguments` (the program's name before them is added here): null device
/// on standard input, one pipe on standard output and error, all signals at their defaults and
/// unblocked, no other descriptor. A program that cannot be executed (missing, a folder, no
/// permission, a bad interpreter) is an `error` here, not a child that exits. Every descriptor is
/// close-on-exec from the moment it exists, so calls on several threads never leak into each
/// other's children.
StartedChild startChild(const std::string& executable, const std::vector<std::string>& arguments);

} // namespace kelmar
