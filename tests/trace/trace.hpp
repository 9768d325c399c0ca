#pragma once

#include "tests/support/program.hpp"
#include "tests/trace/system_call.hpp"

#include <functional>
#include <string>
#include <vector>

namespace kelmar::test {

/// What becomes of a system call.
struct Verdict {
    enum class Kind {
        execute,
        fail, ///< it is not executed, and answers `error`
        kill, ///< it is not executed: everything that is followed is killed at once
    };

    Kind kind = Kind::execute;
    int error = 0; ///< an errno value
};

/// Whom a trace follows. Who is not followed runs freely, and no kill reaches them.
enum class Follow {
    threads,   ///< the program and its threads
    processes, ///< these, and everything that they start
};

/// Given every system call of those followed, in the order in which they come; judges each. Called
/// on one thread at a time, which is not the caller's.
using Judge = std::function<Verdict(const SystemCall&)>;

/// Runs `program` as `Program::run` does, and stops whoever is followed at the entry of each system
/// call that they make (ptrace(2)). The calls until the program itself is executed are not shown.
/// What is still running when the program's first process has ended is killed then. The program
/// writes to files in memory and not to pipes; `onOutput` is not called.
///
/// Throws std::system_error when this machine lets nobody trace (see `whyNotTraced`).
ProgramEnd trace(const Program& program, Follow follow, const Judge& judge);

/// What stands against tracing on this machine; empty if nothing does. A test that needs it is
/// skipped with this as its reason.
std::string whyNotTraced();

/// The same for letting system calls fail.
std::string whyNoneFails();

/// A run in which every system call was executed.
struct Recording {
    ProgramEnd end;
    std::vector<SystemCall> calls; ///< each thread's together, the threads in order of their paths
};

Recording record(const Program& program, Follow follow);

/// A judge for one system call: `verdict` falls on that thread's call with that index, whichever it
/// is in this run.
Judge only(const SystemCall& call, Verdict verdict);

} // namespace kelmar::test
