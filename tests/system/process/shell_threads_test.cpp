#include "system/files/file_descriptor.hpp"
#include "system/process/shell.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {
namespace {

TEST(ShellOnSeveralThreads, AShortChildDoesNotWaitForALongOneOfAnotherThread) {
    // Were one call's pipe inherited by the other's child, this one would read until that one ends.
    // The window for it is short, so both start again and again.
    const test::TemporaryFolder folder;
    const std::string fifo = folder / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    // Who reads from it waits while there is somebody who might write. (O_WRONLY would wait here.)
    FileDescriptor writeEnd(::open(fifo.c_str(), O_RDWR | O_CLOEXEC));
    std::atomic<bool> enough{false};
    std::thread starter([&enough, &fifo] {
        std::vector<std::thread> readers;
        while (!enough && readers.size() < 60) {
            readers.emplace_back([&fifo] { Shell::run("/bin/cat", {fifo}); });
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        for (std::thread& reader : readers) {
            reader.join();
        }
    });
    std::future<void> rounds = std::async(std::launch::async, [] {
        for (int round = 0; round < 100; ++round) {
            EXPECT_EQ(Shell::run("/bin/echo", {"short"}), (Shell::Result{0, "short\n"}));
        }
    });
    EXPECT_EQ(rounds.wait_for(std::chrono::minutes(2)), std::future_status::ready);
    enough = true;
    ::unlink(fifo.c_str()); // who has not opened it yet finds nothing
    writeEnd = FileDescriptor();
    starter.join();
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
