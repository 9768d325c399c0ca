#pragma once

#include "tests/trace/trace.hpp"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>

#include <sys/types.h>

namespace kelmar::test {

/// Follows one run from stop to stop (ptrace(2)). Used on one thread, which becomes the tracer and
/// waits for whomever it follows, not for other children of this process.
class Tracer {
public:
    /// With `watched`, only that thread is stopped at system calls and judged.
    Tracer(Follow follow, Judge judge, std::optional<ThreadPath> watched = std::nullopt);

    /// Becomes the tracer of `process`, which has yet to execute its program. Throws
    /// std::system_error when it may not.
    void seize(pid_t process);

    /// Follows until nobody is left, and returns the status of the seized process, as waitpid(2)
    /// has it.
    int follow();

private:
    struct Thread {
        ThreadPath path;
        std::string executable;
        std::size_t calls = 0;
        std::map<long, std::size_t> callsByNumber;
        int made = 0; ///< threads and processes
    };

    void stopped(pid_t thread, int status);
    void born(pid_t thread);
    void madeAnother(pid_t maker);
    void executed(pid_t process);
    void atSystemCall(pid_t thread);
    void resume(pid_t thread, int signal = 0) const;
    void ended(pid_t thread, int status);
    void killAll();

    Follow follow_;
    Judge judge_;
    std::optional<ThreadPath> watched_;
    pid_t program_ = -1;
    int status_ = 0;
    bool executing_ = false; ///< the program, and no more the test's preparations
    bool killing_ = false;
    std::map<pid_t, Thread> threads_;
    std::set<pid_t> nameless_; ///< born and stopped, before their makers said so
};

} // namespace kelmar::test
