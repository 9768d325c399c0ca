#include "system/process/held_process.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {
namespace {

/// A child that waits for a signal.
pid_t startWaiting() {
    const pid_t child = ::fork();
    if (child == 0) {
        while (true) {
            ::pause();
        }
    }
    return child;
}

int endOf(pid_t child) {
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

/// A child with this number, which was another's before; -1 where that can't be had.
pid_t startWaitingAs(pid_t number) {
    constexpr int attempts = 50; // others take numbers as well
    for (int attempt = 0; attempt < attempts; ++attempt) {
        // proc(5): the next process gets the number after this one.
        std::ofstream("/proc/sys/kernel/ns_last_pid") << number - 1;
        const pid_t child = startWaiting();
        if (child == number) {
            return child;
        }
        ::kill(child, SIGKILL);
        endOf(child);
    }
    return -1;
}

TEST(HeldProcess, GetsTheSignalsThatAreSentToIt) {
    const pid_t child = startWaiting();
    const HeldProcess held(child);
    EXPECT_EQ(held.number(), child);
    EXPECT_TRUE(held.signal(0));
    EXPECT_TRUE(held.signal(SIGTERM));
    EXPECT_EQ(endOf(child), SIGTERM);
    EXPECT_FALSE(held.signal(SIGTERM));
    EXPECT_FALSE(held.signal(0));
}

TEST(HeldProcess, IsNotTheOneThatGetsItsNumberLater) {
    const pid_t first = startWaiting();
    const HeldProcess held(first);
    ASSERT_TRUE(held.signal(SIGKILL));
    endOf(first);
    const pid_t second = startWaitingAs(first);
    if (second < 0) {
        GTEST_SKIP() << "here nobody can choose the number of a process";
    }
    EXPECT_FALSE(held.signal(SIGKILL));
    EXPECT_EQ(::kill(second, 0), 0) << "the other one was hit";
    EXPECT_TRUE(HeldProcess(second).signal(SIGTERM));
    EXPECT_EQ(endOf(second), SIGTERM);
}

TEST(HeldProcess, OfNoRunningProcessSignalsNothing) {
    const pid_t gone = startWaiting();
    ::kill(gone, SIGKILL);
    endOf(gone);
    EXPECT_FALSE(HeldProcess(gone).signal(0));
    EXPECT_FALSE(HeldProcess(0).signal(0)) << "kill(2) takes 0 for the whole group";
    EXPECT_FALSE(HeldProcess(-1).signal(0)) << "and -1 for everybody";
}

} // namespace
} // namespace kelmar
