#include "system/child_process.hpp"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace kelmar {

namespace {

class FileActions {
public:
    FileActions() { ::posix_spawn_file_actions_init(&actions_); }

    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions_); }

    /// The pipe's end cannot be 0 (its read end has a lower number), so the null device comes last
    /// without covering it, even when this process itself was started with descriptors closed.
    void connect(int output) {
        ::posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions_, output, STDERR_FILENO);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        // What this process inherited itself, from a shell's "3>file" say, goes no further.
        ::posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
    }

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

class Attributes {
public:
    Attributes() {
        ::posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }

    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    ~Attributes() { ::posix_spawnattr_destroy(&attributes_); }

    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

private:
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
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        child.error = errno;
        return child;
    }
    FileActions actions;
    actions.connect(ends[1]);
    const Attributes attributes;
    const std::vector<char*> vector = argumentVector(executable, arguments);
    // glibc's posix_spawn waits for the exec and returns its errno: a bad program never runs at
    // all.
    child.error = ::posix_spawn(&child.process, executable.c_str(), actions.get(), attributes.get(),
                                vector.data(), environ);
    ::close(ends[1]);
    if (child.error != 0) {
        ::close(ends[0]);
        return {-1, -1, child.error};
    }
    child.output = ends[0];
    return child;
}

} // namespace kelmar
