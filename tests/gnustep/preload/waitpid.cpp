// A part of the preloaded library, see home_directory.cpp. GNUstep reaps every child of the
// process, which the Mac does not: it would take the exit statuses of the program's own children.
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
