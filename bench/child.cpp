#include "bench/child.hpp"

#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::bench {

pid_t startChild(const std::vector<std::string>& command, bool quiet) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    if (quiet) {
        ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    }
    pid_t child = -1;
    const int error = ::posix_spawn(&child, arguments.front(), quiet ? &actions : nullptr, nullptr,
                                    arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        std::fprintf(stderr, "cannot start %s\n", command.front().c_str());
        std::exit(EXIT_FAILURE);
    }
    return child;
}

int runChild(const std::vector<std::string>& command, bool quiet) {
    const pid_t child = startChild(command, quiet);
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

} // namespace kelmar::bench
