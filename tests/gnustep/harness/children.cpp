// A part of the library that is loaded before the others, see account_home.cpp. GNUstep looks after
// every child of the process, as the Mac does not: it would take the ends of the program's own from
// who waits for them.
#include <cerrno>

#include <dlfcn.h>
#include <sys/types.h>
#include <sys/wait.h>

extern "C" __attribute__((visibility("default"))) pid_t waitpid(pid_t process, int* status,
                                                                int options) {
    if (process == -1) {
        errno = ECHILD;
        return -1;
    }
    static auto* const next = reinterpret_cast<decltype(waitpid)*>(::dlsym(RTLD_NEXT, "waitpid"));
    return next(process, status, options);
}
