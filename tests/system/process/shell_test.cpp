#include "system/files/file_descriptor.hpp"
#include "system/process/shell.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {
namespace {

Shell::Result sh(const std::string& script) {
    return Shell::run("/bin/sh", {"-c", script});
}

TEST(Shell, ReturnsTheExitStatusAndTheOutputUntrimmed) {
    EXPECT_EQ(sh("printf 'gone \\n\\n'; exit 3"), (Shell::Result{3, "gone \n\n"}));
    EXPECT_EQ(sh("exit 0"), (Shell::Result{0, ""}));
    EXPECT_EQ(sh("exit 255").status, 255);
}

TEST(Shell, BothStreamsComeInterleavedAsWritten) {
    EXPECT_EQ(sh("echo 1; echo 2 >&2; echo 3; echo 4 >&2").output, "1\n2\n3\n4\n");
}

TEST(Shell, IllFormedTextIsReplacedAndTheRestKept) {
    EXPECT_EQ(sh("printf 'a\\377b\\303'").output, "a\xEF\xBF\xBD"
                                                  "b\xEF\xBF\xBD");
}

TEST(Shell, ANullCharacterIsPartOfTheOutput) {
    EXPECT_EQ(sh("printf 'a\\000b'").output, std::string("a\0b", 3));
}

TEST(Shell, TheChildReadsEndOfFileAtOnce) {
    EXPECT_EQ(sh("cat; echo done").output, "done\n");
}

TEST(Shell, ArgumentsArriveAsTheyAre) {
    const std::vector<std::string> odd{"",     "a b", "*",  "$HOME", "`id`",
                                       "it's", "\"",  "\\", "a\nb",  "\xFF"};
    std::vector<std::string> arguments{"-c", "for a; do printf '<%s>' \"$a\"; done | od -An -c -v",
                                       "sh"};
    arguments.insert(arguments.end(), odd.begin(), odd.end());
    std::string quoted;
    for (const std::string& argument : odd) {
        quoted += "<" + argument + ">";
    }
    const test::TemporaryFolder folder;
    std::ofstream(folder / "expected") << quoted;
    EXPECT_EQ(Shell::run("/bin/sh", arguments).output,
              sh("od -An -c -v " + folder / "expected").output);
}

TEST(Shell, TheChildInheritsEnvironmentAndWorkingFolder) {
    ::setenv("KELMAR_UNINSTALLER_TEST_ROOT", "/some/root", 1);
    EXPECT_EQ(sh("echo $KELMAR_UNINSTALLER_TEST_ROOT; pwd -P").output,
              "/some/root\n" + std::filesystem::current_path().native() + "\n");
}

TEST(Shell, AChildKilledByASignalReportsItAsShellsDo) {
    EXPECT_EQ(sh("kill -KILL $$").status, 128 + SIGKILL);
    EXPECT_EQ(sh("echo before; kill -TERM $$"), (Shell::Result{128 + SIGTERM, "before\n"}));
}

struct Unstartable {
    std::string name;
    std::string cause;
};

TEST(Shell, AProgramThatCannotBeStartedIsMinusOneWithTheCause) {
    const test::TemporaryFolder folder;
    std::ofstream(folder / "plain") << "#!/bin/sh\n";
    std::ofstream(folder / "interpreter") << "#!/no/such/interpreter\n";
    std::ofstream(folder / "garbage") << "garbage";
    std::filesystem::permissions(folder / "interpreter", std::filesystem::perms(0755));
    std::filesystem::permissions(folder / "garbage", std::filesystem::perms(0755));
    const std::vector<Unstartable> all{
        {folder / "missing", "No such file or directory"},
        {folder / "plain", "Permission denied"},
        {folder.path(), "Permission denied"},
        {folder / "plain/below", "Not a directory"},
        {folder / "interpreter", "No such file or directory"},
        {folder / "garbage", "Exec format error"},
    };
    for (const Unstartable& one : all) {
        EXPECT_EQ(Shell::run(one.name, {"x"}), (Shell::Result{-1, one.cause})) << one.name;
    }
}

TEST(Shell, MegabytesOnBothStreamsDoNotBlock) {
    const Shell::Result result =
        sh("head -c 4000000 /dev/zero | tr '\\0' a; head -c 4000000 /dev/zero | tr '\\0' b >&2");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output.size(), 8'000'000U);
}

/// A set of signals in the text of /proc/PID/status, without 32 and 33: the C library keeps those
/// two for itself and has every child it spawns ignore them.
std::uint64_t signalsIn(const std::string& status, const std::string& name) {
    constexpr std::uint64_t reserved = (1ULL << 31) | (1ULL << 32);
    return std::stoull(status.substr(status.find(name + ":") + name.size() + 1), nullptr, 16) &
           ~reserved;
}

/// nohup(1) ignores SIGHUP for everything that it starts, and what it started is to keep that.
TEST(Shell, TheChildIgnoresWhatTheCallerIgnoresButNotWhatThisProgramDoes) {
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    sigaddset(&blocked, SIGUSR1);
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto pipeBefore = std::signal(SIGPIPE, SIG_IGN);
    const auto hangUpBefore = std::signal(SIGHUP, SIG_IGN);
    const std::string status = Shell::run("/bin/cat", {"/proc/self/status"}).output;
    std::signal(SIGPIPE, pipeBefore);
    std::signal(SIGHUP, hangUpBefore);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    EXPECT_EQ(signalsIn(status, "SigBlk"), 0U);
    EXPECT_EQ(signalsIn(status, "SigIgn"), 1ULL << (SIGHUP - 1));
}

TEST(Shell, AChildCanWaitForItsOwnEvenIfChildrenAreIgnoredHere) {
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    const std::string status = Shell::run("/bin/cat", {"/proc/self/status"}).output;
    const Shell::Result ended = sh("exit 3");
    std::signal(SIGCHLD, before);
    EXPECT_EQ(signalsIn(status, "SigIgn"), 0U);
    EXPECT_EQ(ended.status, 255) << "it was started, and nobody knows how it ended";
}

TEST(Shell, KeepsTheFirstBytesOnlyWhenToldTo) {
    const Shell::Result result =
        Shell::run("/bin/sh", {"-c", "echo first; head -c 400000000 /dev/zero; exit 3"}, 8);
    EXPECT_EQ(result, (Shell::Result{3, std::string("first\n\0\0", 8)}));
}

TEST(Shell, KeepsTheTwoStreamsApartWhenToldTo) {
    EXPECT_EQ(Shell::runSeparately("/bin/sh", {"-c", "echo out; echo err >&2; cat; exit 3"}),
              (Shell::SeparateResult{3, "out\n", "err\n"}));
    EXPECT_EQ(Shell::runSeparately("/no/such/program", {}),
              (Shell::SeparateResult{-1, "", "No such file or directory"}));
    const Shell::SeparateResult much = Shell::runSeparately(
        "/bin/sh", {"-c", "head -c 4000000 /dev/zero; head -c 4000000 /dev/zero >&2; echo x"});
    EXPECT_EQ(much.status, 0);
    EXPECT_EQ(much.output.size(), 4'000'002U);
    EXPECT_EQ(much.error.size(), 4'000'000U);
}

TEST(Shell, TheChildInheritsNoOtherDescriptor) {
    const FileDescriptor leak(::open("/dev/null", O_RDONLY)); // on purpose not close-on-exec
    ASSERT_GE(leak.get(), 3);
    // ls itself opens one: the folder that it lists.
    EXPECT_EQ(Shell::run("/bin/ls", {"/proc/self/fd"}).output, "0\n1\n2\n3\n");
}

TEST(Shell, LeavesNoDescriptorOpenWhetherTheChildStartsOrNot) {
    const auto count = [] {
        const std::filesystem::directory_iterator all("/proc/self/fd");
        return std::distance(begin(all), end(all));
    };
    const auto before = count();
    for (int round = 0; round < 20; ++round) {
        sh("echo x");
        Shell::run("/no/such/program", {});
    }
    EXPECT_EQ(count(), before);
}

TEST(Shell, AnInterruptedCallGoesOn) {
    struct sigaction quiet {};

    struct sigaction before {};

    quiet.sa_handler = [](int) {}; // without SA_RESTART: system calls end with EINTR
    ASSERT_EQ(::sigaction(SIGALRM, &quiet, &before), 0);
    const itimerval often{{0, 2000}, {0, 2000}};
    const itimerval never{};
    ::setitimer(ITIMER_REAL, &often, nullptr);
    const Shell::Result result = sh("sleep 0.3; echo whole; exit 7");
    ::setitimer(ITIMER_REAL, &never, nullptr);
    ::sigaction(SIGALRM, &before, nullptr);
    EXPECT_EQ(result, (Shell::Result{7, "whole\n"}));
}

TEST(Shell, WorksWhenThisProcessHasNoStandardStreams) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(0);
        ::close(1);
        ::close(2);
        const std::string command = "cat; echo out; echo err >&2";
        const bool right = sh(command) == Shell::Result{0, "out\nerr\n"} &&
                           Shell::runSeparately("/bin/sh", {"-c", command}) ==
                               Shell::SeparateResult{0, "out\n", "err\n"};
        ::_exit(right ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST(ShellWithin, ReturnsWhatAProgramThatEndsInTimeWrote) {
    EXPECT_EQ(Shell::runWithin(std::chrono::hours(1), "/bin/sh", {"-c", "echo whole; exit 7"}),
              (Shell::Result{7, "whole\n"}));
    EXPECT_EQ(Shell::runWithin(std::chrono::hours(1), "/no/such/program", {}),
              (Shell::Result{-1, "No such file or directory"}));
}

TEST(ShellWithin, ReadsMoreThanAPipeHolds) {
    const auto result =
        Shell::runWithin(std::chrono::hours(1), "/bin/sh", {"-c", "head -c 1000000 /dev/zero"});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->output.size(), 1'000'000U);
}

TEST(ShellWithin, EndsAProgramThatTakesLonger) {
    EXPECT_EQ(Shell::runWithin(std::chrono::milliseconds(50), "/bin/sh",
                               {"-c", "trap '' TERM; echo begun; exec sleep 1000"}),
              std::nullopt);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child is left";
    EXPECT_EQ(errno, ECHILD);
}

} // namespace
} // namespace kelmar
