#include "ui/main_thread_jobs.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace kelmar {
namespace {

TEST(MainThreadJobs, RunInTheOrderOfPosting) {
    MainThreadJobs jobs;
    std::vector<int> order;
    for (int number = 0; number < 100; ++number) {
        EXPECT_EQ(jobs.post([&order, number] { order.push_back(number); }), number == 0)
            << "one turn is enough for all that wait";
    }
    while (jobs.runTurn()) {
    }
    ASSERT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(MainThreadJobs, AskForATurnAgainAfterTheLast) {
    MainThreadJobs jobs;
    EXPECT_TRUE(jobs.post([] {}));
    EXPECT_FALSE(jobs.runTurn());
    EXPECT_TRUE(jobs.post([] {}));
}

TEST(MainThreadJobs, LeaveTheEventLoopItsShare) {
    MainThreadJobs jobs;
    int ran = 0;
    for (int number = 0; number < 20; ++number) {
        static_cast<void>(jobs.post([&ran] {
            ++ran;
            std::this_thread::sleep_for(MainThreadJobs::share / 2);
        }));
    }
    EXPECT_TRUE(jobs.runTurn());
    EXPECT_GE(ran, 1);
    EXPECT_LE(ran, 3);
    EXPECT_FALSE(jobs.post([&ran] { ++ran; })) << "a turn is on its way";
}

TEST(MainThreadJobs, RunOncePerTurnIfOneTakesTooLong) {
    MainThreadJobs jobs;
    int ran = 0;
    const auto slow = [&ran] {
        ++ran;
        std::this_thread::sleep_for(MainThreadJobs::share * 2);
    };
    static_cast<void>(jobs.post(slow));
    static_cast<void>(jobs.post(slow));
    EXPECT_TRUE(jobs.runTurn());
    EXPECT_EQ(ran, 1);
    EXPECT_FALSE(jobs.runTurn());
    EXPECT_EQ(ran, 2);
}

TEST(MainThreadJobs, ThatAJobPostsComeAfterThoseThatWait) {
    MainThreadJobs jobs;
    std::vector<int> order;
    static_cast<void>(jobs.post([&] {
        order.push_back(1);
        static_cast<void>(jobs.post([&order] { order.push_back(3); }));
    }));
    static_cast<void>(jobs.post([&order] { order.push_back(2); }));
    while (jobs.runTurn()) {
    }
    EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}

TEST(MainThreadJobs, ThatNeverRanAreLetGo) {
    const auto held = std::make_shared<int>(1);
    {
        MainThreadJobs jobs;
        static_cast<void>(jobs.post([held] {}));
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
}

TEST(MainThreadJobs, OfManyThreadsAllRunAndNeverWaitWithoutATurn) {
    MainThreadJobs jobs;
    constexpr int each = 20'000;
    std::atomic<int> turns{0};
    std::atomic<int> left{4};
    std::array<std::thread, 4> posters;
    int count = 0;
    for (std::thread& poster : posters) {
        poster = std::thread([&] {
            for (int number = 0; number < each; ++number) {
                turns += jobs.post([&count] { ++count; }) ? 1 : 0;
            }
            --left;
        });
    }
    // A turn only when one was asked for: a job that nobody asked a turn for would wait for ever.
    while (left > 0 || turns > 0) {
        if (turns > 0) {
            --turns;
            turns += jobs.runTurn() ? 1 : 0;
            EXPECT_LE(turns, 1) << "turns must not pile up";
        }
    }
    for (std::thread& poster : posters) {
        poster.join();
    }
    EXPECT_EQ(count, 4 * each);
}

} // namespace
} // namespace kelmar
