#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <vector>

namespace kelmar::test {

/// Which of a traced run's threads or processes, by how it came to be: {1} is the program's first
/// thread, {1, 2} the second thread or process that {1} started. The same in every run in which
/// each thread starts its own in the same order.
using ThreadPath = std::vector<int>;

/// A system call of a traced run, at its entry.
struct SystemCall {
    ThreadPath thread;
    std::size_t index = 0;      ///< which of its thread's, from 1
    long number = 0;            ///< SYS_openat, SYS_write...; see syscall(2)
    std::string executable;     ///< the path of what the thread runs
    std::size_t occurrence = 0; ///< which of its thread's with this number, from 1

    bool operator==(const SystemCall&) const = default;
    // NOLINTNEXTLINE(modernize-use-nullptr): takes the 0 that this compares with for a pointer
    auto operator<=>(const SystemCall&) const = default;
};

/// Its number's name, as "openat"; the number itself if it has none on this machine.
std::string nameOf(const SystemCall& call);

/// A line for a failing test, as "call 7 of thread 1.2 of /bin/rm: unlinkat".
std::string describe(const SystemCall& call);

} // namespace kelmar::test
