#pragma once

#include <exception>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

/// Whether this machine lets a `World` be made, such as one with mounts of its own. It is tried for
/// real, in a child, so that a half-made one goes with that.
template <class World>
bool canBeMade() {
    const pid_t child = ::fork();
    if (child == 0) {
        bool made = false;
        try {
            const World world; // gone again before the child ends, with all that it made
            made = true;
        } catch (const std::exception&) {
            made = false;
        }
        ::_exit(made ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return status == 0;
}

} // namespace kelmar::test
