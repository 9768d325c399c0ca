#include "tests/gnustep/harness/run_loop.hpp"
#include "tests/support/timeouts.hpp"
#include "tests/ui/dispatcher_contract.hpp"
#include "ui/appkit/dispatcher.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

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

using test::DispatcherContract;

INSTANTIATE_TEST_SUITE_P(AppKit, DispatcherContract,
                         testing::Values(test::DispatcherWithALoop{
                             []() -> std::unique_ptr<Dispatcher> {
                                 return std::make_unique<QueueDispatcher>();
                             }, &test::eventually}));

TEST(Dispatcher, RunsJobsOnTheThreadThatTheToolkitTakesForTheMainOne) {
    QueueDispatcher dispatcher;
    int onMain = -1;
    dispatcher.toMain([&] { onMain = [NSThread isMainThread] == YES ? 1 : 0; });
    EXPECT_TRUE(test::eventually([&] { return onMain != -1; }));
    EXPECT_EQ(onMain, 1);
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
    test::runLoopFor(1);
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

} // namespace
} // namespace kelmar
