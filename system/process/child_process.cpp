#include "system/process/child_process.hpp"

#include "system/process/spawn_setup.hpp"

#include <csignal>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace kelmar {

namespace {

/// What the child finds open, and how it starts.
class SpawnPlan {
public:
    /// The pipe's end cannot be 0 (its read end has a lower number), so the null device comes last
    /// without covering it, even when this process itself was started with descriptors closed.
    explicit SpawnPlan(int output) {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawnattr_init(&attributes_);
        ::posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions_, output, STDERR_FILENO);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        short flags = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        inheritNothingElse(actions_, flags);
        sigset_t signals;
        sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        ::posix_spawnattr_setflags(&attributes_, flags);
    }

    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    ~SpawnPlan() {
        ::posix_spawnattr_destroy(&attributes_);
        ::posix_spawn_file_actions_destroy(&actions_);
    }

    [[nodiscard]] const posix_spawn_file_actions_t* actions() const { return &actions_; }

    [[nodiscard]] const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

std::vector<char*> argumentVector(const std::string& executable,
                                  const std::vector<std::string>& arguments) {
    // posix_spawn(3) takes pointers to char for historical reasons and does not write through them.
    const auto pointer = [](const std::string& text) { return const_cast<char*>(text.c_str()); };
    std::vector<char*> vector;
    vector.reserve(arguments.size() + 2);
    vector.push_back(pointer(executable));
    for (const std::string& argument : arguments) {
        vector.push_back(pointer(argument));
    }
    vector.push_back(nullptr);
    return vector;
}

} // namespace

StartedChild startChild(const std::string& executable, const std::vector<std::string>& arguments) {
    StartedChild child;
    PrivatePipe pipe = openPrivatePipe();
    if (pipe.error != 0) {
        child.error = pipe.error;
        return child;
    }
    const SpawnPlan plan(pipe.writing.get());
    const std::vector<char*> vector = argumentVector(executable, arguments);
    // Both systems' posix_spawn returns the errno of the exec: a bad program never runs at all.
    child.error = ::posix_spawn(&child.process, executable.c_str(), plan.actions(),
                                plan.attributes(), vector.data(), environmentForChildren());
    if (child.error == 0) {
        child.output = std::move(pipe.reading);
    }
    return child;
}

} // namespace kelmar
