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

/// A run in which a verdict was to fall on one system call.
struct Struck {
    bool came = false; ///< it fell: the thread made that call in this run too
    ProgramEnd end;
};

/// Runs `program` again and lets `verdict` fall on the call that is `recorded`: of the same
/// thread's calls with its number the same one, however many others come in between. Only that
/// thread is stopped at system calls, the others run freely, which takes a fraction of the time.
/// Who waits for others, such as a thread that looks around until something has happened, may make
/// fewer calls this time; then it does not fall.
Struck strike(const Program& program, Follow follow, const SystemCall& recorded, Verdict verdict);

} // namespace kelmar::test
