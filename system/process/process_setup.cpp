#include "system/process/process_setup.hpp"

#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace kelmar {

void prepareProcess() {
    // open(2) gives the lowest free number, so going up from 0 fills exactly the gaps.
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) == -1) {
            ::open("/dev/null", O_RDWR);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGCHLD, SIG_DFL);
}

} // namespace kelmar
