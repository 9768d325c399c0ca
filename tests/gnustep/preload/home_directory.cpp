// A part of the library that the tests and GNUstep's helper processes preload (ld.so(8),
// LD_PRELOAD): every account's home folder is KELMAR_TEST_HOME. GNUstep keeps its files in the home
// folder that the account database names, and no test may leave any there.
#include <cstdlib>

#include <dlfcn.h>
#include <pwd.h>

namespace {

passwd* withTestHome(passwd* account) {
    char* const home = std::getenv("KELMAR_TEST_HOME");
    if (account != nullptr && home != nullptr) {
        account->pw_dir = home;
    }
    return account;
}

template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) passwd* getpwnam(const char* name) {
    return withTestHome(next<decltype(getpwnam)>("getpwnam")(name));
}

__attribute__((visibility("default"))) passwd* getpwuid(uid_t user) {
    return withTestHome(next<decltype(getpwuid)>("getpwuid")(user));
}

__attribute__((visibility("default"))) int
getpwnam_r(const char* name, passwd* account, char* buffer, std::size_t size, passwd** found) {
    const int result = next<decltype(getpwnam_r)>("getpwnam_r")(name, account, buffer, size, found);
    withTestHome(*found);
    return result;
}

__attribute__((visibility("default"))) int getpwuid_r(uid_t user, passwd* account, char* buffer,
                                                      std::size_t size, passwd** found) {
    const int result = next<decltype(getpwuid_r)>("getpwuid_r")(user, account, buffer, size, found);
    withTestHome(*found);
    return result;
}
}
