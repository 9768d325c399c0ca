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

/// The same with the two streams apart.
struct SeparateResult {
    std::int32_t status = 0;
    std::string output;
    std::string error; ///< of standard error; the cause when the child could not be started

    friend bool operator==(const SeparateResult&, const SeparateResult&) = default;
};

/// Runs the program at the absolute path `executable` with `arguments`, passed as they are with no
/// shell between, waits for its end without a timeout and collects its output, of which it keeps at
/// most the first `limit` bytes. The child inherits this process's environment and working folder,
/// reads end-of-file from standard input, and inherits no other descriptor (see `startChild` for
/// signals). Never throws for a child that fails. May be called from any number of threads at once;
/// blocks the calling one.
Result run(const std::string& executable, const std::vector<std::string>& arguments,
           std::size_t limit = std::string::npos);

/// The same as `run` for a program that may be given up: absent when it has not closed its output
/// within `patience`. It is killed then (SIGKILL), and left alone if even that does not end it, as
/// when it waits for a disk that never answers.
std::optional<Result> runWithin(std::chrono::milliseconds patience, const std::string& executable,
                                const std::vector<std::string>& arguments);

/// The same as `run`, keeping standard output and standard error apart: only what the child's own
/// side has in hand is on its standard output, whoever else may write to standard error.
SeparateResult runSeparately(const std::string& executable,
                             const std::vector<std::string>& arguments);

} // namespace kelmar::Shell
