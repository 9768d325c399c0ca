#include "tests/support/no_threads.hpp"
#include "tests/ui/dispatcher_contract.hpp"
#include "ui/qt/dispatcher.hpp"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <atomic>
#include <memory>
#include <thread>

#include <sys/resource.h>
#include <unistd.h>

namespace kelmar {
namespace {

using test::DispatcherContract;

INSTANTIATE_TEST_SUITE_P(Qt, DispatcherContract,
                         testing::Values(test::DispatcherWithALoop{
                             []() -> std::unique_ptr<Dispatcher> {
                                 return std::make_unique<QtDispatcher>();
                             },
                             [](const std::function<bool()>& condition) {
                                 return QTest::qWaitFor(condition, 30'000);
                             }}));

TEST(Dispatcher, UnderAFloodLeavesTheEventLoopItsShare) {
    int jobs = 0;
    QtDispatcher dispatcher;
    std::atomic<bool> stop{false};
    std::thread flood([&] {
        while (!stop) {
            // Twice as much work as there is time for.
            dispatcher.toMain([&jobs] {
                ++jobs;
                std::this_thread::sleep_for(std::chrono::microseconds(400));
            });
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    });
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return jobs >= 1000; }, 60'000));
    stop = true;
    flood.join();
    EXPECT_GT(ticks, 20) << "of the window's own timer, in half a second of such jobs";
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

TEST(Dispatcher, WithoutThreadsStillRunsEveryJob) {
    QtDispatcher dispatcher;
    const int mine = ::getpriority(PRIO_PROCESS, 0);
    int ran = 0;
    {
        const test::NoThreads noThreads;
        dispatcher.userInitiated([&] { ++ran; });
        dispatcher.utility([&] { ++ran; });
    }
    EXPECT_EQ(ran, 0) << "later, as every job";
    EXPECT_TRUE(QTest::qWaitFor([&] { return ran == 2; }));
    EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), mine);
}

} // namespace
} // namespace kelmar
