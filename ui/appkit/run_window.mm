#include "ui/appkit/run_window.hpp"

#include "ui/appkit/app_delegate.h"

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace kelmar {

namespace {

/// The application keeps no reference to its delegate, which is there for as long as the process.
AppDelegate* theDelegate = nil;

/// terminate: ends in exit(3), while a folder may still be being measured on a thread that knows
/// nothing of it. What is left goes to the system, instead of being taken down under that thread.
void leave() {
    std::fflush(nullptr);
    ::_exit(EXIT_SUCCESS);
}

} // namespace

void runWindow() {
    @autoreleasepool {
        std::atexit(leave);
        NSApplication* const application = [NSApplication sharedApplication];
        theDelegate = [[AppDelegate alloc] init];
        [application setDelegate:theDelegate];
        [application setActivationPolicy:NSApplicationActivationPolicyRegular];
        [application run];
    }
}

} // namespace kelmar
