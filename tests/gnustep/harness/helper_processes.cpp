#include "tests/gnustep/harness/helper_processes.hpp"

#include <csignal>
#include <fstream>
#include <string>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

namespace {

/// proc(5); 0 without one.
pid_t firstChild() {
    const std::string self = std::to_string(::getpid());
    std::ifstream children("/proc/self/task/" + self + "/children");
    pid_t child = 0;
    children >> child;
    return child;
}

} // namespace

HelperProcesses::HelperProcesses() {
    // prctl(2): children of children that have cut themselves off come to this process.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

HelperProcesses::~HelperProcesses() {
    for (pid_t child = firstChild(); child > 0; child = firstChild()) {
        ::kill(child, SIGKILL);
        if (::waitpid(child, nullptr, 0) != child) {
            break;
        }
    }
}

} // namespace kelmar::test
