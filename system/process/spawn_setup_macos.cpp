#include "system/process/spawn_setup.hpp"

#include <cerrno>

#include <crt_externs.h>
#include <fcntl.h>
#include <unistd.h>

namespace kelmar {

PrivatePipe openPrivatePipe() {
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0) {
        return {{}, {}, errno};
    }
    // Not atomic: between the two calls another thread may start a child. Children started here
    // inherit nothing in any case; these flags are for children that a framework starts.
    ::fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    ::fcntl(ends[1], F_SETFD, FD_CLOEXEC);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1]), 0};
}

int inheritNothingElse(posix_spawn_file_actions_t& /*actions*/, short& flags) {
    // posix_spawnattr_setflags(3): the child keeps only what the file actions created.
    flags = static_cast<short>(flags | POSIX_SPAWN_CLOEXEC_DEFAULT);
    return 0;
}

char** environmentForChildren() {
    return *::_NSGetEnviron(); // environ(7): the variable itself is not there for every kind of
                               // image
}

} // namespace kelmar
