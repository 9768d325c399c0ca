#include "ui/qt/qt_dispatcher.hpp"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <thread>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

namespace kelmar {
namespace {

TEST(Dispatcher, RunsJobsOnTheMainThreadInTheOrderOfPosting) {
    QtDispatcher dispatcher;
    std::vector<int> order;
    bool elsewhere = false;
    const auto self = std::this_thread::get_id();
    std::thread poster([&] {
        for (int number = 0; number < 10'000; ++number) {
            dispatcher.toMain([&, number] {
                order.push_back(number);
                elsewhere = elsewhere || std::this_thread::get_id() != self;
            });
        }
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return order.size() == 10'000; }));
    poster.join();
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_FALSE(elsewhere);
}

TEST(Dispatcher, RunsNoJobBeforeItReturns) {
    QtDispatcher dispatcher;
    bool ran = false;
    dispatcher.toMain([&] { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ran; }));
}

TEST(Dispatcher, RunsAJobThatAJobPosts) {
    QtDispatcher dispatcher;
    int depth = 0;
    dispatcher.toMain([&] {
        ++depth;
        dispatcher.toMain([&] { ++depth; });
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return depth == 2; }));
}

TEST(Dispatcher, LosesNothingOfManyThreads) {
    QtDispatcher dispatcher;
    constexpr int each = 20'000;
    int count = 0;
    std::array<std::thread, 4> posters;
    for (std::thread& poster : posters) {
        poster = std::thread([&] {
            for (int number = 0; number < each; ++number) {
                dispatcher.toMain([&] { ++count; });
            }
        });
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return count == 4 * each; }, 30'000));
    for (std::thread& poster : posters) {
        poster.join();
    }
}

TEST(Dispatcher, UnderAFloodLeavesTheEventLoopItsShare) {
    QtDispatcher dispatcher;
    std::atomic<bool> stop{false};
    std::thread flood([&] {
        while (!stop) {
            // Twice as much work as there is time for.
            dispatcher.toMain([] { std::this_thread::sleep_for(std::chrono::microseconds(400)); });
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    });
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(5);
    QTest::qWait(500);
    stop = true;
    flood.join();
    EXPECT_GT(ticks, 20) << "of the window's own timer, in half a second";
}

TEST(Dispatcher, RunsBackgroundJobsBesideEachOther) {
    QtDispatcher dispatcher;
    std::atomic<int> meeting{0};
    std::atomic<bool> met{false};
    const auto meet = [&] {
        ++meeting;
        for (int wait = 0; wait < 2'000 && meeting != 2; ++wait) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        met = meeting == 2;
    };
    dispatcher.userInitiated(meet);
    dispatcher.userInitiated(meet);
    EXPECT_TRUE(QTest::qWaitFor([&] { return met.load(); }));
}

TEST(Dispatcher, WhatMayTakeItsTimeYieldsToTheRest) {
    QtDispatcher dispatcher;
    const int mine = ::getpriority(PRIO_PROCESS, 0);
    std::atomic<int> theirs{-100};
    dispatcher.utility(
        [&] { theirs = ::getpriority(PRIO_PROCESS, static_cast<id_t>(::gettid())); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return theirs != -100; }));
    EXPECT_GT(theirs, mine);
    EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), mine);
}

} // namespace
} // namespace kelmar
