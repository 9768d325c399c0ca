#include "system/process/shell.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace kelmar {
namespace {

using Clock = std::chrono::steady_clock;

TEST(ShellOnSeveralThreads, AShortChildDoesNotWaitForALongOneOfAnotherThread) {
    // Were one call's pipe inherited by the other's child, this one would read until that one ends.
    // The window for it is short, so both start again and again.
    std::atomic<bool> enough{false};
    std::thread starter([&enough] {
        std::vector<std::thread> sleepers;
        while (!enough && sleepers.size() < 60) {
            sleepers.emplace_back([] { Shell::run("/bin/sleep", {"3"}); });
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        for (std::thread& sleeper : sleepers) {
            sleeper.join();
        }
    });
    std::chrono::milliseconds longest{0};
    for (int round = 0; round < 100; ++round) {
        const Clock::time_point start = Clock::now();
        EXPECT_EQ(Shell::run("/bin/echo", {"short"}), (Shell::Result{0, "short\n"}));
        longest = std::max(
            longest, std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start));
    }
    enough = true;
    starter.join();
    EXPECT_LT(longest, std::chrono::milliseconds(1500));
}

TEST(ShellOnSeveralThreads, EachCallGetsItsOwnChildsOutputAndStatus) {
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int number = 0; number < 8; ++number) {
        threads.emplace_back([number, &wrong] {
            const std::string text(static_cast<std::size_t>(2000 + number),
                                   static_cast<char>('a' + number));
            for (int round = 0; round < 20; ++round) {
                const Shell::Result result =
                    Shell::run("/bin/sh", {"-c", "printf %s \"$1\"; exit \"$2\"", "sh", text,
                                           std::to_string(number)});
                wrong += result == Shell::Result{number, text} ? 0 : 1;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace kelmar
