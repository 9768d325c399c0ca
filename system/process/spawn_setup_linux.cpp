#include "system/process/spawn_setup.hpp"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace kelmar {

PrivatePipe openPrivatePipe() {
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        return {{}, {}, errno};
    }
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1]), 0};
}

int inheritNothingElse(posix_spawn_file_actions_t& actions, short& /*flags*/) {
    // Descriptors that this process inherited, say from a shell's "3>file", are not passed on.
    return ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
}

char** environmentForChildren() {
    return environ;
}

} // namespace kelmar
