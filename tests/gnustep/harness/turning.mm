#include "tests/gnustep/harness/turning.hpp"

#include "tests/window/patience.hpp"

#import <AppKit/AppKit.h>

namespace kelmar::test {

namespace {

/// Handles one event, or waits that long for one. Whatever else waits in the run loop runs as well.
bool turnOnce(double seconds) {
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
        turnOnce(0.01);
    }
    return condition();
}

void settle() {
    for (int quiet = 0; quiet < 3;) {
        quiet = turnOnce(0.01) ? 0 : quiet + 1;
    }
}

void turnFor(double seconds) {
    NSDate* const end = [[NSDate alloc] initWithTimeIntervalSinceNow:seconds];
    while ([end timeIntervalSinceNow] > 0) {
        turnOnce(0.01);
    }
    [end release];
}

} // namespace kelmar::test
