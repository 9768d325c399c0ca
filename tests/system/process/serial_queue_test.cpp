#include "system/process/serial_queue.hpp"
#include "tests/support/no_threads.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <thread>

namespace kelmar {
namespace {

TEST(SerialQueue, WithoutAThreadRunsAJobOnTheCallersAndHasNoTimer) {
    std::optional<SerialQueue> queue;
    {
        const test::NoThreads noThreads;
        queue.emplace("queue");
    }
    bool timed = false;
    queue->startTimer(std::chrono::milliseconds(1), [&] { timed = true; });
    std::thread::id thread;
    queue->sync([&] { thread = std::this_thread::get_id(); });
    EXPECT_EQ(thread, std::this_thread::get_id());
    queue.reset();
    EXPECT_FALSE(timed);
}

} // namespace
} // namespace kelmar
