#include "tests/gnustep/harness/turning.hpp"
#include "tests/window/patience.hpp"
#include "ui/appkit/queue_dispatcher.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>
#include <vector>

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

@interface KelmarTicks : NSObject {
@public
    int count;
}
- (void)tick:(NSTimer*)timer;
@end

@implementation KelmarTicks

- (void)tick:(NSTimer*)timer {
    static_cast<void>(timer);
    ++count;
}

@end

namespace kelmar {
namespace {

TEST(Dispatcher, RunsJobsOnTheMainThreadInTheOrderOfPosting) {
    QueueDispatcher dispatcher;
    std::vector<int> order;
    bool elsewhere = false;
    std::thread poster([&] {
        for (int number = 0; number < 10'000; ++number) {
            dispatcher.toMain([&, number] {
                order.push_back(number);
                elsewhere = elsewhere || [NSThread isMainThread] == NO;
            });
        }
    });
    EXPECT_TRUE(test::eventually([&] { return order.size() == 10'000; }));
    poster.join();
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_FALSE(elsewhere);
}

TEST(Dispatcher, RunsNoJobBeforeItReturns) {
    QueueDispatcher dispatcher;
    bool ran = false;
    dispatcher.toMain([&] { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_TRUE(test::eventually([&] { return ran; }));
}

TEST(Dispatcher, RunsAJobThatAJobPosts) {
    QueueDispatcher dispatcher;
    int depth = 0;
    dispatcher.toMain([&] {
        ++depth;
        dispatcher.toMain([&] { ++depth; });
    });
    EXPECT_TRUE(test::eventually([&] { return depth == 2; }));
}

TEST(Dispatcher, LosesNothingOfManyThreads) {
    QueueDispatcher dispatcher;
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
    EXPECT_TRUE(test::eventually([&] { return count == 4 * each; }));
    for (std::thread& poster : posters) {
        poster.join();
    }
}

TEST(Dispatcher, UnderAFloodLeavesTheEventLoopItsShare) {
    QueueDispatcher dispatcher;
    std::atomic<bool> stop{false};
    std::thread flood([&] {
        while (!stop) {
            // Twice as much work as there is time for.
            dispatcher.toMain([] { std::this_thread::sleep_for(std::chrono::microseconds(400)); });
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    });
    KelmarTicks* const ticks = [[KelmarTicks new] autorelease];
    NSTimer* const timer = [NSTimer scheduledTimerWithTimeInterval:0.005 target:ticks
                                                          selector:@selector(tick:)
                                                          userInfo:nil
                                                           repeats:YES];
    test::turnFor(1);
    stop = true;
    flood.join();
    [timer invalidate];
    EXPECT_GT(ticks->count, 20) << "of the event loop's own timer, in a second";
}

TEST(Dispatcher, RunsJobsWhileSomethingIsModalOrTheMouseIsHeld) {
    QueueDispatcher dispatcher;
    for (NSString* const mode : {NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode}) {
        bool ran = false;
        dispatcher.toMain([&] { ran = true; });
        for (const test::Deadline deadline; !ran && !deadline.hasPassed();) {
            [[NSRunLoop currentRunLoop] runMode:mode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        }
        EXPECT_TRUE(ran) << [mode UTF8String];
    }
}

TEST(Dispatcher, RunsBackgroundJobsBesideEachOther) {
    QueueDispatcher dispatcher;
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
    EXPECT_TRUE(test::eventually([&] { return met.load(); }));
}

TEST(Dispatcher, SaysWhatAPersonWaitsForAndWhatMayTakeItsTime) {
    QueueDispatcher dispatcher;
    std::atomic<unsigned> initiated{0};
    std::atomic<unsigned> utility{0};
    dispatcher.userInitiated([&] { initiated = qos_class_self(); });
    dispatcher.utility([&] { utility = qos_class_self(); });
    EXPECT_TRUE(test::eventually([&] { return initiated != 0 && utility != 0; }));
    EXPECT_EQ(initiated, QOS_CLASS_USER_INITIATED);
    EXPECT_EQ(utility, QOS_CLASS_UTILITY);
}

/// A job's objects go with the job, whatever thread it ran on.
TEST(Dispatcher, LetsGoOfWhatAJobHolds) {
    QueueDispatcher dispatcher;
    auto held = std::make_shared<int>(0);
    dispatcher.toMain([held] {});
    dispatcher.userInitiated([held] {});
    dispatcher.utility([held] {});
    EXPECT_TRUE(test::eventually([&] { return held.use_count() == 1; }));
}

} // namespace
} // namespace kelmar
