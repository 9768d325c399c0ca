#include "system/process/spawn_setup.hpp"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace kelmar {

int openPrivatePipe(int (&ends)[2]) {
    return ::pipe2(ends, O_CLOEXEC) == 0 ? 0 : errno;
}

void inheritNothingElse(posix_spawn_file_actions_t& actions, short& /*flags*/) {
    // What this process inherited itself, from a shell's "3>file" say, goes no further.
    ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
}

char** environmentForChildren() {
    return environ;
}

} // namespace kelmar
