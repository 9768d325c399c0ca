#include "system/process/child_process.hpp"

#include "system/process/spawn_setup.hpp"

#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {

namespace {

/// The child's open descriptors and its start. Once a step has failed, the later ones are skipped.
class SpawnPlan {
public:
    /// The order matters if this process itself was started with descriptors closed. A write end is
    /// never 0, since its read end has a lower number, and `errors` is none of the first three.
    SpawnPlan(int output, int errors) {
        take(::posix_spawn_file_actions_init(&actions_));
        take(::posix_spawnattr_init(&attributes_));
        if (error_ != 0) {
            return;
        }
        take(::posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO));
        take(::posix_spawn_file_actions_adddup2(&actions_, errors, STDERR_FILENO));
        take(::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
        short flags = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        take(inheritNothingElse(actions_, flags));
        sigset_t signals;
        sigemptyset(&signals);
        take(::posix_spawnattr_setsigmask(&attributes_, &signals));
        sigaddset(&signals, SIGPIPE); // this process ignores it, see `prepareProcess`
        sigaddset(&signals, SIGCHLD); // a shell can't wait for children if it is ignored
        take(::posix_spawnattr_setsigdefault(&attributes_, &signals));
        take(::posix_spawnattr_setflags(&attributes_, flags));
    }

    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    ~SpawnPlan() {
        ::posix_spawnattr_destroy(&attributes_);
        ::posix_spawn_file_actions_destroy(&actions_);
    }

    /// The errno value of the first step that failed, or 0.
    [[nodiscard]] int error() const { return error_; }

    [[nodiscard]] const posix_spawn_file_actions_t* actions() const { return &actions_; }

    [[nodiscard]] const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    void take(int result) { error_ = error_ == 0 ? result : error_; }

    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
    int error_ = 0;
};

std::vector<char*> argumentVector(const std::string& executable,
                                  const std::vector<std::string>& arguments) {
    // posix_spawn(3) takes pointers to non-const char for historical reasons, but does not write.
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

StartedChild startChild(const std::string& executable, const std::vector<std::string>& arguments,
                        ChildStreams streams) {
    StartedChild child;
    PrivatePipe output = openPrivatePipe();
    PrivatePipe errors =
        streams == ChildStreams::apart && output.error == 0 ? openPrivatePipe() : PrivatePipe();
    child.error = output.error != 0 ? output.error : errors.error;
    if (child.error != 0) {
        return child;
    }
    const SpawnPlan plan(output.writing.get(), streams == ChildStreams::apart
                                                   ? errors.writing.get()
                                                   : output.writing.get());
    child.error = plan.error();
    if (child.error != 0) {
        return child;
    }
    const std::vector<char*> vector = argumentVector(executable, arguments);
    // On both systems posix_spawn returns the errno of exec: a bad program never starts.
    child.error = ::posix_spawn(&child.process, executable.c_str(), plan.actions(),
                                plan.attributes(), vector.data(), environmentForChildren());
    if (child.error == 0) {
        child.output = std::move(output.reading);
        child.errors = std::move(errors.reading);
    }
    return child;
}

int waitForChild(pid_t process) {
    constexpr int signalBase = 128;
    constexpr int unknown = 255;
    int status = 0;
    while (::waitpid(process, &status, 0) == -1) {
        if (errno != EINTR) {
            return unknown; // somebody else has already waited for it
        }
    }
    return WIFSIGNALED(status) ? signalBase + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace kelmar
