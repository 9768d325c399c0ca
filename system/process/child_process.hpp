#pragma once

#include "system/files/file_descriptor.hpp"

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// Where a child's standard output and standard error go.
enum class ChildStreams {
    merged, ///< into one pipe, in the order in which they are written
    apart,  ///< into a pipe each
};

/// A child just started, or the reason why it was not.
struct StartedChild {
    pid_t process = -1;
    FileDescriptor output; ///< read end of the pipe of standard output, or of both streams
    FileDescriptor errors; ///< read end of the pipe of standard error; only for `apart`
    int error = 0; ///< 0 when the child runs, otherwise the errno value of the step that failed
};

/// Starts `executable` with `arguments` (the program's name before them is added here), the null
/// device on standard input, and no descriptor but the three streams. SIGPIPE and SIGCHLD have
/// their default action in the child; other signals keep what this process's caller chose, such as
/// nohup(1), and none is blocked. A program that cannot be executed (missing, a folder, no
/// permission, a bad interpreter) is an `error` here, not a child that exits. Every descriptor is
/// close-on-exec from the moment it exists, so calls on several threads never leak into each
/// other's children.
StartedChild startChild(const std::string& executable, const std::vector<std::string>& arguments,
                        ChildStreams streams = ChildStreams::merged);

/// Waits until the child `process` has ended. Its exit status; 128 plus the signal's number when a
/// signal ended it, as shells report it; 255 when the system does not say how it ended.
int waitForChild(pid_t process);

} // namespace kelmar
