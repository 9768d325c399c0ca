#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The one place where the program starts another program.
namespace kelmar::Shell {

struct Result {
    /// The child's exit status; 128 plus the signal's number if a signal ended it, as shells report
    /// it (callers look for no status in that range); -1 if it could not be started.
    std::int32_t status = 0;
    /// Everything that the child wrote to standard output and standard error, in the order of
    /// writing, decoded as UTF-8 (`decodeUtf8`) and otherwise unchanged. If the child could not be
    /// started, the system's description of the cause, from strerror(3).
    std::string output;

    friend bool operator==(const Result&, const Result&) = default;
};

/// The same with the two streams separate.
struct SeparateResult {
    std::int32_t status = 0;
    std::string output;
    std::string error; ///< standard error; the cause if the child could not be started

    friend bool operator==(const SeparateResult&, const SeparateResult&) = default;
};

/// Runs the program at the absolute path `executable` with `arguments`, passed unchanged and
/// without a shell. Waits for its end without a timeout and collects its output, of which it keeps
/// at most the first `limit` bytes. The child inherits this process's environment and working
/// folder, reads end-of-file from standard input, and inherits no other descriptor (see
/// `startChild` for signals). Never throws for a child that fails. Blocks the calling thread; may
/// be called from several threads at once.
Result run(const std::string& executable, const std::vector<std::string>& arguments,
           std::size_t limit = std::string::npos);

/// The same as `run`, with a timeout: absent if the child has not closed its output within
/// `patience`. It is then killed (SIGKILL), and abandoned if even that does not end it, as when it
/// waits for a disk that never answers.
std::optional<Result> runWithin(std::chrono::milliseconds patience, const std::string& executable,
                                const std::vector<std::string>& arguments);

/// The same as `run`, but collects standard output and standard error separately. What other
/// programs write to the child's standard error then does not appear in its standard output.
SeparateResult runSeparately(const std::string& executable,
                             const std::vector<std::string>& arguments);

} // namespace kelmar::Shell
