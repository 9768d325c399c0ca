#include "system/process/environment.hpp"
#include "system/process/shell.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {
namespace {

/// What `check` answers in a child, whose environment is its own to spoil.
template <typename Check>
bool inChild(const Check& check) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(check() ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return status == 0;
}

TEST(Environment, ThatIsClearedPassesNothingOn) {
    EXPECT_TRUE(inChild([] {
        ::setenv("BASH_ENV", "/tmp/evil", 1);
        ::setenv("EMPTY", "", 1);
        clearEnvironment();
        return Shell::run("/usr/bin/env", {}).output.empty();
    }));
}

TEST(Environment, ThatNamesNothingIsClearedAsWell) {
    EXPECT_TRUE(inChild([] {
        static char first[] = "A=1";
        static char odd[] = "=nameless";
        static char bare[] = "bare";
        static char last[] = "BASH_ENV=/tmp/evil";
        static char* variables[] = {first, odd, bare, last, nullptr};
        environ = variables;
        clearEnvironment();
        return Shell::run("/usr/bin/env", {}).output.empty();
    }));
}

TEST(Environment, CanBeFilledAgain) {
    EXPECT_TRUE(inChild([] {
        clearEnvironment();
        ::setenv("SUDO_UID", "501", 1);
        return Shell::run("/usr/bin/env", {}).output == "SUDO_UID=501\n";
    }));
}

} // namespace
} // namespace kelmar
