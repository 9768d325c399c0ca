#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A system call that does nothing and that nobody else makes.
void call(int times) {
    for (int each = 0; each < times; ++each) {
        ::syscall(SYS_getpgid, 0);
    }
}

void waitForEver() {
    sigset_t none;
    ::sigemptyset(&none);
    ::sigsuspend(&none);
}

int waitFor(pid_t process) {
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int callInThreads(const char* /*argument*/) {
    std::thread first(call, 3);
    std::thread second(call, 5);
    call(1);
    first.join();
    second.join();
    return 0;
}

int callInAChild(const char* times) {
    const pid_t child = ::fork();
    if (child == 0) {
        call(static_cast<int>(std::strtol(times, nullptr, 10)));
        ::_exit(4);
    }
    return waitFor(child);
}

int spawn(const char* path) {
    pid_t child = -1;
    char* const arguments[] = {const_cast<char*>(path), nullptr};
    ::posix_spawn(&child, path, nullptr, nullptr, arguments, environ);
    return waitFor(child);
}

int executeOnAThread(const char* path) {
    std::thread([path] {
        call(2);
        ::execl(path, path, nullptr);
    }).join();
    return 1;
}

int makeFolder(const char* path) {
    std::puts(::mkdirat(AT_FDCWD, path, 0700) == 0 ? "made" : std::strerror(errno));
    return 0;
}

int waitWithAChild(const char* /*argument*/) {
    ::fork();
    waitForEver();
    return 0;
}

/// The exit status of a child that stops itself and is told to go on.
int stopAChild(const char* /*argument*/) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::raise(SIGSTOP);
        ::_exit(5);
    }
    ::waitpid(child, nullptr, WUNTRACED);
    ::kill(child, SIGCONT);
    return waitFor(child);
}

int catchASignal(const char* /*argument*/) {
    static volatile std::sig_atomic_t caught = 0;
    std::signal(SIGUSR1, [](int) { caught = 6; });
    std::raise(SIGUSR1);
    return caught;
}

int leaveAChildBehind(const char* /*argument*/) {
    if (::fork() == 0) {
        waitForEver();
    }
    return 0;
}

} // namespace

/// Does what its first argument says, with the second.
int main(int count, char** arguments) {
    const std::map<std::string, int (*)(const char*)> all = {
        {"threads", callInThreads},    {"child", callInAChild},  {"spawn", spawn},
        {"execute", executeOnAThread}, {"folder", makeFolder},   {"wait", waitWithAChild},
        {"stop", stopAChild},          {"signal", catchASignal}, {"leave", leaveAChildBehind}};
    return count < 2 ? 0 : all.at(arguments[1])(count < 3 ? "" : arguments[2]);
}
