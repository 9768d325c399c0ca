#pragma once

#include <exception>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

/// Returns true if a `Type` can be constructed on this machine, such as one that needs mounts.
/// Tries it in a child process, so that a partial construction leaves nothing in this one.
template <class Type>
bool canBeConstructed() {
    const pid_t child = ::fork();
    if (child == 0) {
        bool constructed = false;
        try {
            const Type object; // destroyed before the child ends
            constructed = true;
        } catch (const std::exception&) {
            constructed = false;
        }
        ::_exit(constructed ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return status == 0;
}

} // namespace kelmar::test
