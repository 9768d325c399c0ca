#include "tests/gnustep/harness/run_loop.hpp"

#include "tests/support/timeouts.hpp"

#import <AppKit/AppKit.h>

namespace kelmar::test {

namespace {

/// Handles one event, or waits that long for one; timers and the other sources run as well.
bool runLoopOnce(double seconds) {
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    NSEvent* const event =
        [NSApp nextEventMatchingMask:NSAnyEventMask
                           untilDate:[NSDate dateWithTimeIntervalSinceNow:seconds]
                              inMode:NSDefaultRunLoopMode
                             dequeue:YES];
    if (event != nil) {
        [NSApp sendEvent:event];
    }
    [NSApp updateWindows];
    [pool drain];
    return event != nil;
}

} // namespace

bool eventually(const std::function<bool()>& condition) {
    for (const Deadline deadline; !deadline.hasPassed();) {
        if (condition()) {
            return true;
        }
        runLoopOnce(0.01);
    }
    return condition();
}

void settle() {
    for (int quiet = 0; quiet < 3;) {
        quiet = runLoopOnce(0.01) ? 0 : quiet + 1;
    }
}

void runLoopFor(double seconds) {
    NSDate* const end = [[NSDate alloc] initWithTimeIntervalSinceNow:seconds];
    while ([end timeIntervalSinceNow] > 0) {
        runLoopOnce(0.01);
    }
    [end release];
}

} // namespace kelmar::test
