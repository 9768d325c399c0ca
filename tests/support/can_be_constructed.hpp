#pragma once

#include <exception>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

/// Whether constructing a `Type` works on this machine, such as one with mounts of its own. It is
/// tried in a child process, which takes a half-constructed one with it.
template <class Type>
bool canBeConstructed() {
    const pid_t child = ::fork();
    if (child == 0) {
        bool constructed = false;
        try {
            const Type object; // gone again before the child ends, with all that it constructed
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
