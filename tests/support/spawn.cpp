#include "tests/support/spawn.hpp"

#include <system_error>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

int spawnAndWait(const std::vector<std::string>& command, bool quiet) {
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
        throw std::system_error(error, std::generic_category(), command.front());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

} // namespace kelmar::test
