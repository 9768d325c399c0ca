#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The one place where the program starts another program.
namespace kelmar::Shell {

struct Result {
    /// The child's exit status; 128 plus the signal's number when a signal ended it, as shells
    /// report it (no exit status that callers look for can be mistaken for that); -1 when it could
    /// not be started.
    std::int32_t status = 0;
    /// Everything that the child wrote to standard output and standard error, as it reached their
    /// one pipe, decoded as UTF-8 (`decodeUtf8`) and otherwise untouched. When the child could not
    /// be started, the system's description of the cause, as strerror(3) words it.
    std::string output;

    friend bool operator==(const Result&, const Result&) = default;
};

/// Runs the program at the absolute path `executable` with `arguments`, passed as they are with no
/// shell between, waits for its end without a time-out and collects its output. The child inherits
/// this process's environment and working folder, reads end-of-file from standard input, has every
/// signal at its default and unblocked, and inherits no other descriptor. Never throws for a child
/// that fails. May be called from any number of threads at once; blocks the calling one.
Result run(const std::string& executable, const std::vector<std::string>& arguments);

} // namespace kelmar::Shell
