#pragma once

#include "system/files/file_descriptor.hpp"

#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar {

/// Where a child's standard output and standard error go.
enum class ChildStreams {
    merged, ///< into one pipe, in the order in which they are written
    apart,  ///< into two pipes
};

/// A started child, or the reason why it could not be started.
struct StartedChild {
    pid_t process = -1;
    FileDescriptor output; ///< read end of the pipe of standard output, or of both streams
    FileDescriptor errors; ///< read end of the pipe of standard error; only for `apart`
    int error = 0; ///< 0 if the child runs, otherwise the errno value of the step that failed
};

/// Starts `executable` with `arguments` (argv[0] is added here). The child gets the null device as
/// standard input, and no other descriptors than the three streams. SIGPIPE and SIGCHLD have their
/// default action in it; other signals keep the disposition that this process inherited, as from
/// nohup(1), and none is blocked. If the program cannot be executed (missing, a folder, no
/// permission, a bad interpreter), the result has an `error`; there is no child. Every descriptor
/// is close-on-exec from its creation, so concurrent calls never leak into each other's children.
StartedChild startChild(const std::string& executable, const std::vector<std::string>& arguments,
                        ChildStreams streams = ChildStreams::merged);

/// Waits for the child `process`. Returns its exit status; 128 plus the signal's number if a signal
/// ended it, as shells report it; 255 if the system does not report how it ended.
int waitForChild(pid_t process);

} // namespace kelmar
