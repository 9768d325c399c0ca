#include "tests/gnustep/harness/isolated_process.hpp"

#include "tests/gnustep/harness/helper_processes.hpp"
#include "tests/support/temporary_folder.hpp"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

namespace {

constexpr const char* homeVariable = "KELMAR_TEST_HOME"; // see home_directory.cpp
constexpr std::chrono::seconds timeout(100);

[[noreturn]] void becomeIsolated(const std::string& folder, char** arguments) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const std::string home = folder + "/home";
    const std::string temporary = folder + "/tmp";
    std::filesystem::create_directory(home);
    std::filesystem::create_directory(temporary);
    for (const char* const name : {homeVariable, "HOME"}) {
        ::setenv(name, home.c_str(), 1);
    }
    for (const char* const name : {"TMPDIR", "TMP", "TEMP"}) {
        ::setenv(name, temporary.c_str(), 1);
    }
    ::setenv("LD_PRELOAD", KELMAR_PRELOAD, 1);
    ::execv("/proc/self/exe", arguments);
    ::_exit(127);
}

/// The exit status as shells have it.
int waitFor(pid_t child) {
    const auto end = std::chrono::steady_clock::now() + timeout;
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > end) {
            std::fprintf(stderr, "timed out after %d seconds\n", static_cast<int>(timeout.count()));
            ::kill(child, SIGKILL);
            ::waitpid(child, &status, 0);
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

std::optional<int> runIsolated(char** arguments) {
    if (std::getenv(homeVariable) != nullptr) {
        return std::nullopt;
    }
    const TemporaryFolder folder;
    const HelperProcesses helperProcesses;
    const pid_t child = ::fork();
    if (child == 0) {
        becomeIsolated(folder.path(), arguments);
    }
    return waitFor(child);
}

} // namespace kelmar::test
